#include "toolkit/PegFunctions.h"

#include "host/Phone.h"
#include "host/frontend/FrontEnd.h"
#include "host/input/Keyboard.h"
#include "host/inspection/Watchdog.h"
#include "host/lcd/Lcd.h"
#include "host/toolkit/LoopStatus.h"
#include "host/toolkit/MainQueue.h"
#include "host/toolkit/MessagePool.h"
#include "presentation/PRESCPresentationManager.h"

#include <charconv>
#include <cstring>
#include <limits>
#include <system_error>
#include <utility>

namespace {

/// How often the toolkit has been started and not stopped. A process may have more than one display.
int gStarts = 0;

} // namespace

void pegInit()
{
    if (gStarts++ > 0)
        return;
    host::MessagePool::create();
    host::MainQueue::create();
    const auto [width, height] = host::panelSize();
    PegThing::mpScreen = new host::Lcd(width, height);
    PegThing::mpMessageQueue = new PegMessageQueue;
    gpPresent = new PRESCPresentationManager;
    host::LoopStatus::instance().setRoot(gpPresent);
    host::Keyboard::instance().connect();
    host::startFrontEnd();
    host::Watchdog::start();
}

void pegCleanUp()
{
    if (gStarts == 0 || --gStarts > 0)
        return;
    host::Watchdog::stop();
    host::stopFrontEnd();
    host::Keyboard::instance().disconnect();
    host::LoopStatus::instance().setRoot(nullptr);
    delete gpPresent;
    delete std::exchange(PegThing::mpMessageQueue, nullptr);
    delete std::exchange(PegThing::mpScreen, nullptr);
    host::MainQueue::dropMessages();
}

int PegAtoI(const char* text)
{
    if (text == nullptr)
        return 0;
    const char* const first = text[0] == '+' && text[1] != '-' ? text + 1 : text;
    int number = 0;
    if (std::from_chars(first, first + std::strlen(first), number).ec == std::errc::result_out_of_range)
        return *first == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return number;
}

int PegStrLen(const PegChar* text)
{
    int length = 0;
    while (text != nullptr && text[length] != 0)
        ++length;
    return length;
}
