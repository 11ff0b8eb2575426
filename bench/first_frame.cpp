// Shows a list and prints the milliseconds from the moment given (nanoseconds of the steady clock) to its first frame.

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/Widget.h"
#include "host/lcd/Lcd.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

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
        std::printf("%.3f\n", duration<double, std::milli>(now - started).count());
        display.shutdown();
    });
    display.setCurrent(&list);
    display.show();
    display.exec();
    host::Lcd::current()->setFrameListener({});
    return 0;
}
