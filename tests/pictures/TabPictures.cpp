#include "pictures/StatusScreens.h"
#include "variants/list/ListBoxPrivate.h"
#include "variants/tab/TabScreenPrivate.h"
#include "widgets/KestrelListBoxItem.h"

namespace {

using DisplayAPI::ListBoxPrivate;
using DisplayAPI::ListBoxPrivateWP1;
using DisplayAPI::ListBoxSide;
using DisplayAPI::TabScreen;
using DisplayAPI::TabScreenPrivate;
using DisplayAPI::TabScreenPrivateWP1;
using DisplayAPI::TabScreenSide;

/// Tab screens over a list of rooms.
class TabPictures : public StatusScreens {
protected:
    ~TabPictures() override
    {
        mTabs->gainOwnership();
        gpPresent->Remove(mTabs->getWidget());
        mTabs.reset();
    }

    /// As a display does it.
    TabScreenSide& showTabs(const std::vector<std::string>& titles, TabScreen::IconType icon = TabScreen::CALLS)
    {
        makeSides(icon);
        for (const std::string& title : titles)
            mTabs->addTab(title, mTabs->numberOfTabs() == 0 ? mPage.get() : nullptr, false);
        PegThing* const window = mTabs->getWidget();
        window->Resize({0, 0, static_cast<std::int16_t>(host::Lcd::current()->width() - 1), window->Area().bottom});
        mTabs->releaseOwnership();
        gpPresent->Add(window);
        mTabs->show();
        return *mTabs;
    }

    void makeSides(TabScreen::IconType icon)
    {
        if (isTwoLines()) {
            mPage = std::make_unique<ListBoxPrivateWP1>(nullptr, false);
            mTabs = std::make_unique<TabScreenPrivateWP1>(nullptr, icon, true);
        } else {
            mPage = std::make_unique<ListBoxPrivate>(nullptr, false);
            mTabs = std::make_unique<TabScreenPrivate>(nullptr, icon);
        }
        mPage->setTitle(std::string("Rooms"));
        for (const std::string& room : rooms(9))
            mItems.push_back(std::make_unique<KestrelListBoxItem>(text(room)));
        for (const auto& item : mItems)
            dynamic_cast<KestrelListBox*>(mPage->getWidget())->append(item.get());
    }

    /// Paints after each, so that what is seen has been reached by partial repaints.
    static void pressInTabs(std::initializer_list<PegKey> keys)
    {
        for (const PegKey key : keys) {
            host::Lcd::current()->paint();
            gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key});
        }
    }

    std::vector<std::unique_ptr<KestrelListBoxItem>> mItems;
    std::unique_ptr<ListBoxSide> mPage;
    std::unique_ptr<TabScreenSide> mTabs;
};

} // namespace

TEST_P(TabPictures, KeysAreThePagesThenTheBars)
{
    showTabs({"All", "Missed"});
    pressInTabs({PK_DOWN});
    expectScreen("tab-page");
    pressInTabs({PK_UP, PK_UP});
    expectScreen("tab-bar");
}

TEST_P(TabPictures, EmptyTabOfSeveralThatDoNotFit)
{
    showTabs({"All", "Missed", "Received", "Dialled", "Forwarded", "Deleted"}, TabScreen::MESSAGES);
    pressInTabs({PK_UP, PK_RIGHT, PK_RIGHT, PK_RIGHT, PK_RIGHT});
    expectScreen("tab-many");
    pressInTabs({PK_RIGHT});
    expectScreen("tab-last");
}

TEST_P(TabPictures, TitleThatDoesNotFit)
{
    showTabs({"A very long title that has no room on any panel", "B"}, TabScreen::NO_ICON);
    expectScreen("tab-long");
}

TEST_P(TabPictures, StatusLinesAboveTheBar)
{
    TabScreenSide& tabs = showTabs({"All", "Missed"}, TabScreen::PERSONS);
    tabs.setSysWindowText(ENGLISH.caption, 0);
    tabs.setSysWindowSize(1);
    expectScreen("tab-status-line");
}

TEST_P(TabPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    showTabs({"الكل", "الفائتة", "المستلمة", "Dialled", "المحولة"});
    pressInTabs({PK_UP, PK_LEFT});
    expectScreen("tab-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, TabPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
