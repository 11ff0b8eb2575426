#include "host/lcd/Lcd.h"
#include "pictures/PictureTest.h"
#include "presentation/PRESCPresentationManager.h"
#include "widgets/KestrelApplication.h"
#include "widgets/SystemWindow.h"

namespace {

class SystemWindowPictures : public PictureTest {
protected:
    ~SystemWindowPictures() override { KestrelApplication::getCurrentApplication()->setHardwareVariant(1); }

    /// The manager owns it.
    SystemWindow& showWindow(int lines)
    {
        auto* window = new SystemWindow;
        window->setSystemWindowSize(lines);
        window->setSystemWindowText(0, "Forwarded to 4711");
        window->setSystemWindowText(1, "2 missed calls");
        gpPresent->Add(window);
        return *window;
    }
};

TEST_F(SystemWindowPictures, overAList)
{
    start(host::Variant::PLAIN);
    showList("Rooms", rooms(9));
    SystemWindow& window = showWindow(2);
    window.setSystemWindowTop(92, true, true);
    window.setTime(9, 5, 0);
    window.showTime(true);
    expectPicture("plain-system-window");
}

TEST_F(SystemWindowPictures, ofTwoLines)
{
    start(host::Variant::WP1);
    KestrelApplication::getCurrentApplication()->setHardwareVariant(0);
    SystemWindow& window = showWindow(2);
    window.setTimer("00:42");
    expectPicture("wp1-system-window");
}

} // namespace
