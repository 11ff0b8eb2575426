// Prints how many bytes of heap a list row takes, with all that comes with it; how many of them are a facade's lock,
// Wait object and their record; and how many the record of the call that appends it.

#include "Phone.h"
#include "kit/OnGuiThread.h"

#include "DisplayAPI/List.h"

#include <cstdio>
#include <malloc.h>
#include <optional>
#include <vector>

namespace {

using bench::Phone;

constexpr int ROWS = 10'000;

/// In every arena and with what the allocator itself needs for each block.
double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Never many at a time, so that few request records are on their way.
void append(DisplayAPI::List& list)
{
    for (int row = 0; row < ROWS; ++row) {
        char text[32];
        std::snprintf(text, sizeof text, "Entry %05d", row);
        list.append(text);
        if (row % 16 == 15)
            list.size();
    }
}

/// The first filling makes the request records, which are kept for the next one.
double bytesPerRow()
{
    Phone phone;
    DisplayAPI::List list(0);
    append(list);
    list.clear();
    list.size();
    const double before = heapInUse();
    append(list);
    return (heapInUse() - before) / ROWS;
}

class BareWidget : public DisplayAPI::Widget {
public:
    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override { signalComplete(request); }
};

/// What each facade has of its own whatever it shows: the request lock, the Wait object, the record that holds them.
double bytesPerFacadeSynchronisation()
{
    std::vector<std::optional<BareWidget>> widgets(ROWS);
    const double before = heapInUse();
    for (auto& widget : widgets)
        widget.emplace();
    return (heapInUse() - before) / ROWS;
}

/// A list's call on the GUI thread leaves its record behind; a row that is made of a text is appended by one.
double bytesPerCallOnGuiThread()
{
    Phone phone;
    DisplayAPI::List list(0);
    double bytes = 0;
    DisplayAPI::kit::onGuiThread([&] {
        const double before = heapInUse();
        for (int call = 0; call < ROWS; ++call)
            list.setSelectionHighlight(true);
        bytes = (heapInUse() - before) / ROWS;
    });
    return bytes;
}

} // namespace

int main()
{
    const double row = bytesPerRow();
    std::printf("%f %f %f\n", row, bytesPerFacadeSynchronisation(), bytesPerCallOnGuiThread());
    return 0;
}
