#include "Cases.h"

namespace bench {

std::vector<Case> listWidgetCases(const std::string& directory)
{
    // In a process of its own: it needs an application object, and its main thread.
    const auto figure = [program = directory + "/list_widget"](std::size_t which) {
        return figuresOf(program, 3).at(which);
    };
    return {{FILLING, LIST_WIDGET, "ms", [=] { return figure(0); }},
            {FILLING, LIST_WIDGET_OF_ONE_HEIGHT, "ms", [=] { return figure(1); }},
            {HEAP, "A row of QListWidget", "bytes", [=] { return figure(2); }}};
}

} // namespace bench
