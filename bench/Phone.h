#pragma once

#include "Measure.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/Widget.h"

#include <future>
#include <memory>
#include <thread>

namespace bench {

/// A telephone whose GUI thread runs beside the measuring thread.
class Phone {
public:
    explicit Phone(Seats seats = FREE)
    {
        std::promise<void> ready;
        mGui = std::thread([&, seats] {
            pinTo(seats.loop);
            run(ready);
        });
        ready.get_future().wait();
    }

    ~Phone()
    {
        mDisplay->shutdown();
        mGui.join();
    }

    DisplayAPI::Display& display() { return *mDisplay; }

private:
    void run(std::promise<void>& ready)
    {
        DisplayAPI::Widget::setGuiThreadId();
        mDisplay = std::make_unique<DisplayAPI::Display>("plain", "en", "dd.mm.yyyy", "24", false, nullptr);
        mDisplay->show();
        ready.set_value();
        mDisplay->exec();
        mDisplay.reset();
        DisplayAPI::Widget::setGuiThreadId(0);
    }

    std::unique_ptr<DisplayAPI::Display> mDisplay;
    std::thread mGui;
};

} // namespace bench
