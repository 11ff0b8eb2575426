#include "apps/examples/Example.h"
#include "widgets/StatusMessage.h"
#include "widgets/SystemWindow.h"

#include <memory>

namespace {

/// A screen with nothing on it: OK shows a message for two seconds.
class Screen : public PegWindow {
public:
    int Message(const PegMessage& message) override
    {
        if (message.wType != PM_KEY || message.iData != PK_OK)
            return PegWindow::Message(message);
        mMessage = std::make_unique<StatusMessage>("Saved", 2000); // ours again when its time is up
        gpPresent->Add(mMessage.get());
        return 0;
    }

private:
    std::unique_ptr<StatusMessage> mMessage;
};

/// Two lines and a clock.
SystemWindow* newLines()
{
    auto* const lines = new SystemWindow;
    lines->setSystemWindowSize(2);
    lines->setSystemWindowText(0, "Forwarded to 4711");
    lines->setSystemWindowText(1, "2 missed calls");
    lines->setTime(9, 41, 0);
    lines->showTime(true);
    return lines;
}

} // namespace

/// The status lines at the top of the screen, and a message above everything else.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    Screen screen; // goes before the phone does, and takes its message along
    screen.Resize(gpPresent->Area());
    examples::show(&screen);
    gpPresent->Add(newLines());
    phone.run();
}
