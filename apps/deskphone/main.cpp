#include "DisplayAPI/Display.h"
#include "DisplayAPI/Widget.h"
#include "apps/deskphone/Desk.h"
#include "host/Phone.h"
#include "host/toolkit/Loop.h"

#include <atomic>
#include <thread>

using DisplayAPI::Display;

namespace {

/// The loop runs on while the screens close: their threads may be waiting for it.
void closeDown(Display& display, deskphone::Desk& desk)
{
    std::atomic<bool> isClosed = false;
    const std::jthread closer([&] {
        desk.close();
        isClosed = true;
        host::Loop::quit();
    });
    while (!isClosed)
        display.exec();
}

} // namespace

int main()
{
    DisplayAPI::Widget::setGuiThreadId();
    Display display(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    deskphone::Desk desk(display, "en");
    display.show();
    desk.open();
    display.exec();
    closeDown(display, desk);
    display.setCurrent(nullptr);
    return 0;
}
