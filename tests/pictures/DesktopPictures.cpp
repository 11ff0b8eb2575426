#include "host/lcd/Geometry.h"
#include "pictures/StatusScreens.h"
#include "support/VirtualTime.h"
#include "utilities/TranslatorIfc.h"
#include "variants/desktop/DesktopPrivate.h"

namespace {

using DisplayAPI::DesktopPrivate;
using DisplayAPI::DesktopPrivateWP1;
using DisplayAPI::DesktopSide;

class Days : public TranslatorIfc {
public:
    explicit Days(std::string monday) : mMonday(std::move(monday)) {}
    std::string translate(const std::string& key) override { return key == "Monday" ? mMonday : key; }

private:
    std::string mMonday;
};

class DesktopPictures : public test::VirtualTime, public StatusScreens {
protected:
    DesktopPictures()
    {
        if (isTwoLines())
            mDesktop = std::make_unique<DesktopPrivateWP1>(nullptr);
        else
            mDesktop = std::make_unique<DesktopPrivate>(nullptr);
        PegThing& widget = *mDesktop->getWidget();
        widget.Resize(host::rectAt(0, 0, host::panelSize().width, host::heightOf(widget.Area())));
        mDesktop->releaseOwnership();
        gpPresent->Add(&widget);
    }

    ~DesktopPictures() override
    {
        mDesktop->gainOwnership();
        gpPresent->Remove(mDesktop->getWidget());
    }

    void label(const std::vector<std::string>& labels, bool shifted)
    {
        for (std::size_t i = 0; i < labels.size(); ++i)
            mDesktop->setFPKLabel(static_cast<int>(i), labels[i], true, shifted);
    }

    void fill(const std::vector<std::string>& labels)
    {
        label(labels, false);
        mDesktop->setDate(9, 3, 2026);
        mDesktop->setTime(9, 41, 0);
        mDesktop->setDayLabelText(&mDays);
        mDesktop->setFPKHighlight(0, true);
        mDesktop->setFPKEnabled(2, false, false);
    }

    void showAllIcons()
    {
        mDesktop->displayKeyLockIcon(true);
        mDesktop->displayDNDIcon(true);
        mDesktop->displayRingerOffIcon(true);
        mDesktop->displayMobileUserIcon(true, 0);
        mDesktop->displayMaintenanceIcon(true);
        mDesktop->displayCallbacksIcon(true);
        mDesktop->setSBPostTimeIcon(1, true);
    }

    Days mDays{"Monday"};
    std::unique_ptr<DesktopSide> mDesktop;
};

} // namespace

TEST_P(DesktopPictures, Filled)
{
    fill({"Ada", "Bert", "Conference", "Door", "Night"});
    mDesktop->setStatusBarMode("Away", "until 3");
    mDesktop->setExtLabelText("4711");
    mDesktop->setLogoText("Northern Light");
    mDesktop->displayDNDIcon(true);
    expectScreen("desktop");
}

TEST_P(DesktopPictures, AllIconsShifted)
{
    fill({"Ada"});
    label({"Forward", "Park", "Record", "Pick up", "Mute"}, true);
    mDesktop->setShifted(true);
    mDesktop->set12HourClockMode(true);
    mDesktop->setTime(22, 41, 0);
    mDesktop->setStatusBarMode("Maintenance", "");
    mDesktop->setExtLabelText("4711");
    mDesktop->setExtensionNumberAndArrowState(true);
    mDesktop->setFPKEnabled(0, false, true);
    showAllIcons();
    expectScreen("desktop-shifted");
}

TEST_P(DesktopPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    Days days("الاثنين");
    fill({"علي", "باب"});
    mDesktop->setDayLabelText(&days);
    mDesktop->setStatusBarMode("مشغول", "");
    mDesktop->setExtLabelText("4711");
    mDesktop->setExtensionNumberAndArrowState(true);
    mDesktop->setLogoText("ضوء");
    mDesktop->displayDNDIcon(true);
    mDesktop->displayKeyLockIcon(true);
    expectScreen("desktop-arabic");
    mDesktop->setDayLabelText(nullptr);
}

TEST_P(DesktopPictures, Screensaver)
{
    const std::list<std::string> paths{APP_PICTURES "/sea.png", APP_PICTURES "/hills.png"};
    mDesktop->screensaverSetImages(&paths);
    mDesktop->screensaverStart();
    expectScreen("desktop-sea");
    pass(10'000);
    expectScreen("desktop-hills");
}

INSTANTIATE_TEST_SUITE_P(Panel, DesktopPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
