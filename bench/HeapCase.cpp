#include "Cases.h"

namespace bench {

std::vector<Case> heapCases(const std::string& directory)
{
    // In a process of its own: what earlier cases have left to be used again would count as free of charge.
    const auto figure = [program = directory + "/row_heap"](std::size_t which) {
        return figuresOf(program, 3).at(which);
    };
    return {{HEAP, "A list row \"Entry 00001\", with all that comes with it", "bytes", [=] { return figure(0); }},
            {HEAP, "of which a facade's lock, Wait object and their record", "bytes", [=] { return figure(1); }},
            {HEAP, "of which the record of the call that appends it", "bytes", [=] { return figure(2); }},
            {HEAP, "Facade, row and text", "bytes", [=] { return figure(0) - figure(1) - figure(2); }}};
}

} // namespace bench
