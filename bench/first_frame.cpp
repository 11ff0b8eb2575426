// Shows a list and prints the milliseconds from the moment given (nanoseconds of the steady clock) to its first frame,
// and the megabytes that it has had in memory by then at most.

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/Widget.h"
#include "host/lcd/Lcd.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

/// Of this program alone: what the system counts for the process begins with whoever has started it.
double peakMegabytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (double kilobytes = 0; word == "VmHWM:" && status >> kilobytes)
            return kilobytes / 1024;
    return -1;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace std::chrono;
    if (argc != 2)
        return 2;
    const nanoseconds started(std::atoll(argv[1]));
    DisplayAPI::Widget::setGuiThreadId();
    DisplayAPI::Display display("plain", "en", "dd.mm.yyyy", "24", false, nullptr);
    DisplayAPI::List list(0);
    list.setTitle(std::string("Menu"));
    for (const char* row : {"Call log", "Contacts", "Settings", "About"})
        list.append(std::string(row));
    host::Lcd::current()->setFrameListener([&] {
        const nanoseconds now = steady_clock::now().time_since_epoch();
        std::printf("%.3f %.2f\n", duration<double, std::milli>(now - started).count(), peakMegabytes());
        display.shutdown();
    });
    display.setCurrent(&list);
    display.show();
    display.exec();
    host::Lcd::current()->setFrameListener({});
    return 0;
}
