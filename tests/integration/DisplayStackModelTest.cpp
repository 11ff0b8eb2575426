// Screens and popups set, dismissed, shown, hidden and deleted at random, against a model of the stack.

#include "CheckedDisplay.h"
#include "DisplayAPI/Display.h"
#include "doubles/Recorder.h"
#include "support/Application.h"
#include "support/GuiLoop.h"
#include "support/SteppedLoop.h"

#include <memory>

using DisplayAPI::Display;
using doubles::ScreenPrivate;
using test::Chance;
using test::CheckedDisplay;

namespace {

using Screen = CheckedDisplay::Screen;

constexpr int STEPS = 10000;

/// What the calls need of the thread that they come from.
struct Stage {
    Display& display;
    CheckedDisplay& checked;
    std::function<void(const std::function<void()>&)> onGuiThread;
};

/// An application's screens and popups, and its moods.
class Actor {
public:
    Actor(Stage stage, Chance& chance, const std::string& name) : mStage(std::move(stage)), mChance(chance)
    {
        constexpr int SCREENS = 7;
        mScreens.resize(SCREENS);
        for (int i = 0; i < SCREENS; ++i) {
            mNames.push_back(name + std::to_string(i));
            make(i);
        }
    }

    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;

    ~Actor()
    {
        for (std::size_t i = 0; i < mScreens.size(); ++i)
            destroy(static_cast<int>(i));
    }

    void act()
    {
        const int choice = mChance.below(100);
        const int screen = mChance.below(static_cast<int>(mScreens.size()));
        if (choice < 45)
            mStage.display.setCurrent(mScreens[index(screen)].get());
        else if (choice < 75)
            dismiss(screen);
        else if (choice < 84)
            mStage.display.show();
        else if (choice < 89)
            mStage.display.hide();
        else if (choice < 92)
            mStage.display.setCurrent(nullptr);
        else
            replace(screen);
        doubles::Recorder::instance().clear();
    }

private:
    static std::size_t index(int screen) { return static_cast<std::size_t>(screen); }

    /// The even ones are full screens, the odd ones popups.
    void make(int number)
    {
        mStage.onGuiThread([&] {
            const auto kind = number % 2 == 0 ? ScreenPrivate::SCREEN : ScreenPrivate::POPUP;
            mScreens[index(number)] = std::make_unique<Screen>(mNames[index(number)], kind);
            mStage.checked.add(mScreens[index(number)].get());
        });
    }

    /// On the calling thread, but for what has to be noted on the GUI thread.
    void destroy(int number)
    {
        Screen* const screen = mScreens[index(number)].get();
        mStage.onGuiThread([&] {
            if (screen->getPrivateImpl()->attachedTo() != nullptr)
                mStage.checked.widgetDismissed(screen->getPrivateImpl());
            mStage.checked.remove(screen);
        });
        mScreens[index(number)].reset();
    }

    void replace(int number)
    {
        destroy(number);
        make(number);
    }

    /// By the display, as the user has it, or by itself.
    void dismiss(int number)
    {
        ScreenPrivate* const side = mScreens[index(number)]->getPrivateImpl();
        const bool byItself = mChance.oneIn(2);
        mStage.onGuiThread([&] {
            if (byItself)
                side->widgetDismissed(side);
            else
                mStage.checked.widgetDismissed(side);
        });
    }

    Stage mStage;
    Chance& mChance;
    std::vector<std::string> mNames;
    std::vector<std::unique_ptr<Screen>> mScreens;
};

class DisplayStackModelTest : public test::SeededTest {};

} // namespace

TEST_P(DisplayStackModelTest, TheStackIsTheModelsFromTheGuiThread)
{
    test::SteppedLoop gui;
    auto* const checked = new CheckedDisplay(false);
    Display display(checked);
    Chance chance(seed(), 0);
    Actor actor({display, *checked, [](const std::function<void()>& work) { work(); }}, chance, "screen ");
    for (int step = 0; step < STEPS && !HasFailure(); ++step)
        actor.act();
    EXPECT_GT(checked->steps(), STEPS * 3 / 4);
}

TEST_P(DisplayStackModelTest, TheStackIsTheModelsFromSeveralThreads)
{
    constexpr int THREADS = 4;
    test::GuiLoop gui;
    CheckedDisplay* checked = nullptr;
    std::unique_ptr<Display> display;
    gui.call([&] { display = std::make_unique<Display>(checked = new CheckedDisplay(true)); });
    test::onThreads(THREADS, [&](int thread) {
        Chance chance(seed(), thread);
        const auto onGuiThread = [&](const std::function<void()>& work) { gui.call(work); };
        Actor actor({*display, *checked, onGuiThread}, chance, "thread " + std::to_string(thread) + " screen ");
        for (int step = 0; step < STEPS / THREADS && !HasFailure(); ++step)
            actor.act();
    });
    EXPECT_GT(checked->steps(), STEPS / 2);
    gui.call([&] { display.reset(); });
}

INSTANTIATE_SEEDED(DisplayStackModelTest);
