#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/MenuCommand.h"
#include "apps/examples/Example.h"
#include "kit/Fence.h"
#include "kit/OffGuiThread.h"

using DisplayAPI::Command;
using DisplayAPI::Desktop;
using DisplayAPI::Displayable;
using DisplayAPI::MenuCommand;

namespace {

constexpr int QUIET = 0;
constexpr int SHIFT = 1;
constexpr int SAVER = 2;

/// What the keys do. A desktop does not let go of its listeners: it is deleted before they are.
class Keys : public DisplayAPI::CommandListener {
public:
    void commandAction(Command* command, Displayable* source) override
    {
        auto& desktop = static_cast<Desktop&>(*source);
        switch (static_cast<MenuCommand*>(command)->getId()) {
        case Desktop::FPK + QUIET: setQuiet(desktop, !mIsQuiet); break;
        case Desktop::FPK + SHIFT: setShifted(desktop, !mIsShifted); break;
        case Desktop::FPK + SAVER: desktop.screensaverStart(); break;
        default: break;
        }
    }

private:
    void setQuiet(Desktop& desktop, bool on)
    {
        mIsQuiet = on;
        desktop.displayDNDIcon(on);
        desktop.setFPKHighlight(QUIET, on);
        desktop.setStatusBarMode(on ? "Do not disturb" : "", "");
    }

    void setShifted(Desktop& desktop, bool on)
    {
        mIsShifted = on;
        desktop.setFPKHighlight(SHIFT, on);
        desktop.setShifted(on);
    }

    bool mIsQuiet = false;
    bool mIsShifted = false;
};

void fill(Desktop& desktop, std::list<std::string>& pictures)
{
    desktop.setLogoText("DisplayAPI");
    desktop.setExtLabelText("4711");
    desktop.setDate(9, 3, 2026);
    desktop.setTime(9, 41, 0);
    desktop.screensaverSetImages(&pictures);
    for (const bool shifted : {false, true})
        desktop.setFPKLabel(SHIFT, "Shift", true, shifted);
    desktop.setFPKLabel(QUIET, "Quiet", true, false);
    desktop.setFPKLabel(QUIET, "Louder", false, true);
    desktop.setFPKLabel(SAVER, "Pictures", true, false);
}

} // namespace

/// A desktop whose programmable keys switch something: the first one lights its lamp, the second one shifts all, the
/// third one shows pictures until a key is pressed.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    std::list<std::string> pictures{APP_PICTURES "/sea.png", APP_PICTURES "/hills.png"};
    Keys keys;
    Desktop desktop;
    desktop.addCommandListener(&keys);
    phone.run(desktop, [&] { fill(desktop, pictures); });
    DisplayAPI::kit::offGuiThread([] { DisplayAPI::kit::Fence().wait(); });
}
