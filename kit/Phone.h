#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/Widget.h"
#include "kit/OffGuiThread.h"

#include <string>
#include <thread>
#include <utility>

namespace DisplayAPI::kit {

/// What the display is made with; docs/running.md has the formats.
struct PhoneSettings {
    std::string hardware; ///< "WP1" is the 208 x 42 panel, anything else the 240 x 128 one
    bool narrow = false;  ///< 168 x 128
    std::string locale = "en_GB";
    std::string dateFormat = "dd.mm.yyyy";
    std::string timeFormat = "24h";
};

/// The telephone of a program, from its start to its end in the right order.
///
///     int main()
///     {
///         kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
///         List list(kit::listType(kit::WayBack::NOWHERE));
///         kit::Subscription choice(list, [&](Command* command) { ... });
///         phone.run(list, [&] { list.append("Ada"); });
///     }
///
/// The thread that makes it becomes the GUI thread: make it before any facade, and declare screens and subscriptions
/// behind it, so that they go before it does.
class Phone {
public:
    /// Starts the toolkit and shows the display, with nothing on it yet.
    explicit Phone(const PhoneSettings& settings)
        : mDisplay(settings.hardware, settings.locale, settings.dateFormat, settings.timeFormat, settings.narrow,
                   nullptr)
    {
        mDisplay.show();
    }
    Phone(const Phone&) = delete;
    Phone& operator=(const Phone&) = delete;

    /// Takes what is shown off the screen and stops the toolkit. On the GUI thread.
    ~Phone() { mDisplay.setCurrent(nullptr); }

    /// The phone's; from any thread as long as the phone lives.
    Display& display() { return mDisplay; }

    /// Runs the loop until quit(), or until the user ends the program. On the GUI thread.
    void run() { detail::runLoop(mDisplay); }

    /// The same with `first` as the first screen, and `work` on a thread of its own meanwhile: the application's.
    /// `work` may take a std::stop_token, which tells it of the end; the loop runs on until `work` has returned.
    template <typename Work>
    void run(Displayable& first, Work work)
    {
        mDisplay.setCurrent(&first);
        std::jthread application(std::move(work));
        run();
        application.request_stop();
        offGuiThread([&] { application.join(); });
    }

    /// Ends run(). From any thread; off the GUI thread it waits for it.
    void quit() { mDisplay.shutdown(); }

private:
    struct GuiThread {
        GuiThread() { Widget::setGuiThreadId(); }
    };

    GuiThread mGuiThread; ///< before the display, whose start wants to know
    Display mDisplay;
};

} // namespace DisplayAPI::kit
