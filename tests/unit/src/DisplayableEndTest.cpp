// A displayable whose private side goes while it is shown, and whoever observes the screen.

#include "DisplayAPI/DisplayEventIfc.h"
#include "DisplayAPI/ExpandingTreeList.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/SearchList.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayAPI/TextBox.h"
#include "DisplayAPI/Tree.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Recorder.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <utility>

using namespace DisplayAPI;

namespace {

constexpr int END_OF_SCREEN = 1;

template <typename Screen>
std::unique_ptr<Screen> madeScreen()
{
    if constexpr (std::is_same_v<Screen, TabScreen>)
        return std::make_unique<TabScreen>(TabScreen::NO_ICON, false);
    else if constexpr (std::is_constructible_v<Screen, int>)
        return std::make_unique<Screen>(0);
    else
        return std::make_unique<Screen>();
}

/// Does once what it is given.
struct EndObserver : DisplayEventIfc {
    void displayChanged(std::string) override
    {
        if (react != nullptr)
            std::exchange(react, nullptr)();
    }

    std::function<void()> react;
};

/// A screen that two displays show; whoever observes the first one does something to it when it leaves.
template <typename Screen>
class DisplayableEndTest : public test::SteppedTest {
protected:
    DisplayableEndTest()
    {
        for (DisplayPrivate* display : {&first, &second}) {
            display->show();
            display->setCurrent(screen.get());
        }
        first.subscribe(&observer);
        doubles::Recorder::instance().clear();
    }

    void end()
    {
        GuiRequestEvent request(screen.get(), END_OF_SCREEN);
        screen->processGuiRequest(request);
    }

    static int sidesDeleted() { return doubles::Recorder::instance().count("~"); }

    std::unique_ptr<Screen> screen = madeScreen<Screen>();
    EndObserver observer;
    DisplayPrivate first{false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, false};
    DisplayPrivate second{false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, false};
};

using ScreensThatEnd = testing::Types<TextBox, List, SearchList, ExpandingTreeList, Tree, TabScreen>;
TYPED_TEST_SUITE(DisplayableEndTest, ScreensThatEnd);

TYPED_TEST(DisplayableEndTest, WhoIsToldOfItsEndMayDeleteIt)
{
    this->observer.react = [this] { this->screen.reset(); };
    this->end();
    EXPECT_EQ(this->screen, nullptr);
    EXPECT_EQ(this->sidesDeleted(), 1);
    EXPECT_EQ(this->first.getCurrent(), nullptr);
    EXPECT_EQ(this->second.getCurrent(), nullptr);
}

TYPED_TEST(DisplayableEndTest, WhoIsToldOfItsEndMayEndItAsWell)
{
    this->observer.react = [this] { this->end(); };
    this->end();
    EXPECT_EQ(this->screen->getPrivateImpl(), nullptr);
    EXPECT_EQ(this->sidesDeleted(), 1);
}

TYPED_TEST(DisplayableEndTest, WhoIsToldMayDeleteItWhileAnotherThreadEndsIt)
{
    this->observer.react = [this] { this->screen.reset(); };
    test::Worker worker([this] { this->screen->postEvent(END_OF_SCREEN); });
    this->gui.waitForQueued(1);
    this->gui.runAll();
    worker.join();
    EXPECT_EQ(this->screen, nullptr);
    EXPECT_EQ(this->sidesDeleted(), 1);
}

} // namespace
