#include "host/lcd/Lcd.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RunningToolkit.h"
#include "support/Seeds.h"
#include "toolkit/PegWindow.h"
#include "utilities/ICC.h"
#include "widgets/SystemWindow.h"

#include <chrono>
#include <gmock/gmock.h>
#include <memory>
#include <random>
#include <thread>

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

namespace host {

namespace {

/// A filled rectangle with a text, which notes what it is asked to paint.
class Patch : public PegThing {
public:
    Patch(const PegRect& area, Level level, std::string text = {}) : mLevel(level), mText(std::move(text))
    {
        Resize(area);
    }

    void Draw(PegPainter& painter) override
    {
        clips.push_back(painter.clip());
        painter.fill(Area(), mLevel);
        painter.text(Area(), ICC::fromUTF8toUNICODE(mText), {Font::FIXED});
    }

    std::vector<PegRect> clips;

private:
    Level mLevel;
    std::string mText;
};

class LcdTest : public testing::Test {
protected:
    LcdTest() { lcd.paint(); }

    ~LcdTest() override
    {
        while (gpPresent->First() != nullptr)
            gpPresent->Remove(gpPresent->First());
    }

    std::uint8_t pixel(int x, int y)
    {
        const Picture picture = lcd.picture();
        return picture.pixels[static_cast<std::size_t>(y * picture.width + x)];
    }

    std::vector<std::string> texts()
    {
        std::vector<std::string> found;
        for (const TextRun& run : lcd.picture().texts)
            found.push_back(run.text);
        return found;
    }

    test::StartedToolkit toolkit;
    Lcd& lcd = *Lcd::current();
};

TEST_F(LcdTest, FirstFrameIsBare)
{
    EXPECT_FALSE(lcd.isDirty());
    EXPECT_THAT(lcd.picture().pixels, Each(0));
    EXPECT_EQ(lcd.picture().frame, 1U);
}

TEST_F(LcdTest, PaintsFromBottomToTopAndParentsFirst)
{
    Patch bottom({0, 0, 49, 49}, Level::LIGHT), top({20, 20, 69, 69}, Level::MIDDLE), child({0, 0, 9, 9}, Level::DARK);
    bottom.Add(&child);
    gpPresent->Add(&bottom);
    gpPresent->Add(&top);
    lcd.paint();
    EXPECT_EQ(pixel(5, 5), 3);
    EXPECT_EQ(pixel(15, 15), 1);
    EXPECT_EQ(pixel(25, 25), 2);
    EXPECT_EQ(pixel(100, 100), 0);
    bottom.Remove(&child);
}

TEST_F(LcdTest, ChildIsClippedToItsParent)
{
    Patch parent({0, 0, 9, 9}, Level::LIGHT), child({5, 5, 50, 50}, Level::DARK);
    parent.Add(&child);
    gpPresent->Add(&parent);
    lcd.paint();
    EXPECT_EQ(pixel(9, 9), 3);
    EXPECT_EQ(pixel(10, 10), 0);
    parent.Remove(&child);
}

TEST_F(LcdTest, AsksForWhatIsDirtyOnly)
{
    Patch left({0, 0, 49, 127}, Level::LIGHT), right({50, 0, 239, 127}, Level::DARK);
    gpPresent->Add(&left);
    gpPresent->Add(&right);
    lcd.paint();
    left.clips.clear();
    right.clips.clear();
    left.Invalidate({10, 10, 19, 19});
    lcd.paint();
    EXPECT_THAT(left.clips, ElementsAre(PegRect{10, 10, 19, 19}));
    EXPECT_THAT(right.clips, IsEmpty());
}

TEST_F(LcdTest, RemovedThingLeavesWhatIsBelowIt)
{
    Patch bottom({0, 0, 239, 127}, Level::LIGHT, "below"), top({0, 0, 239, 127}, Level::DARK, "above");
    gpPresent->Add(&bottom);
    gpPresent->Add(&top);
    lcd.paint();
    EXPECT_THAT(texts(), ElementsAre("above"));
    gpPresent->Remove(&top);
    lcd.paint();
    EXPECT_EQ(pixel(200, 100), 1);
    EXPECT_THAT(texts(), ElementsAre("below"));
    gpPresent->Remove(&bottom);
    lcd.paint();
    EXPECT_EQ(pixel(200, 100), 0);
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(LcdTest, TextIsForgottenWhereAPartOfItIsPaintedWithoutIt)
{
    Patch patch({0, 0, 99, 19}, Level::BARE, "text");
    gpPresent->Add(&patch);
    lcd.paint();
    gpPresent->Remove(&patch, false);
    lcd.invalidate({0, 0, 9, 9});
    lcd.paint();
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(LcdTest, TextThatIsPaintedInPartAgainIsThereOnce)
{
    Patch patch({0, 0, 239, 127}, Level::LIGHT, "text");
    gpPresent->Add(&patch);
    lcd.paint();
    patch.Invalidate({0, 0, 15, 127});
    patch.Invalidate({20, 0, 25, 127});
    lcd.paint();
    EXPECT_THAT(texts(), ElementsAre("text"));
}

TEST_F(LcdTest, TextShowsWhileItIsCoveredInPart)
{
    Patch bottom({0, 0, 239, 127}, Level::LIGHT, "below"), top({0, 0, 19, 127}, Level::DARK);
    gpPresent->Add(&bottom);
    gpPresent->Add(&top);
    lcd.paint();
    EXPECT_THAT(texts(), ElementsAre("below"));
}

TEST_F(LcdTest, WhatAWindowCoversIsNotPainted)
{
    Patch below({0, 0, 239, 127}, Level::LIGHT, "below");
    PegWindow window;
    window.Resize({20, 0, 219, 127});
    auto* const inside = new Patch({30, 0, 99, 127}, Level::DARK, "inside");
    window.Add(inside);
    gpPresent->Add(&below);
    gpPresent->Add(&window);
    lcd.paint();
    below.clips.clear();
    inside->clips.clear();
    window.Invalidate();
    lcd.paint();
    EXPECT_THAT(below.clips, IsEmpty());
    EXPECT_THAT(inside->clips, ElementsAre(inside->Area()));
    EXPECT_THAT(texts(), ElementsAre("below", "inside"));
}

TEST_F(LcdTest, WhatIsAboveAWindowIsPainted)
{
    PegWindow window;
    window.Resize({0, 0, 239, 127});
    Patch above({10, 10, 99, 29}, Level::DARK, "above");
    gpPresent->Add(&window);
    gpPresent->Add(&above);
    lcd.paint();
    window.Invalidate();
    lcd.paint();
    EXPECT_THAT(texts(), ElementsAre("above"));
    EXPECT_EQ(pixel(90, 11), 3);
}

/// Windows and patches one above the other, painted in parts as they come: as if all were painted anew.
TEST_F(LcdTest, PartsMakeTheSamePictureAsTheWhole)
{
    for (const unsigned int seed : test::seeds()) {
        std::mt19937 random(seed);
        const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned int>(most)); };
        const auto somewhere = [&] { return rectAt(upTo(200), upTo(100), 20 + upTo(100), 20 + upTo(60)); };
        std::vector<std::unique_ptr<PegThing>> things;
        for (int step = 0; step < 60; ++step) {
            if (upTo(2) == 0) {
                things.push_back(std::make_unique<Patch>(somewhere(), Level::LIGHT, std::to_string(step)));
            } else {
                things.push_back(std::make_unique<PegWindow>());
                things.back()->Resize(somewhere());
                things.back()->Add(new Patch(things.back()->Area(), Level::DARK, std::to_string(step)));
            }
            gpPresent->Add(things.back().get());
            if (upTo(3) == 0)
                things.erase(things.begin() + upTo(static_cast<int>(things.size())));
            lcd.paint();
            const Picture inParts = lcd.picture();
            lcd.invalidate(rectAt(0, 0, lcd.width(), lcd.height()));
            lcd.paint();
            ASSERT_EQ(inParts.pixels, lcd.picture().pixels) << "seed " << seed << ", step " << step;
            ASSERT_EQ(inParts.texts, lcd.picture().texts) << "seed " << seed << ", step " << step;
        }
    }
}

TEST_F(LcdTest, InvisibleThingIsNotDirty)
{
    Patch patch({0, 0, 9, 9}, Level::DARK);
    lcd.Invalidate(&patch);
    lcd.Invalidate(nullptr);
    lcd.invalidate({-20, -20, -10, -10});
    EXPECT_FALSE(lcd.isDirty());
}

TEST_F(LcdTest, CountsFramesAndTellsTheListenerAfterEach)
{
    std::uint64_t told = 0;
    lcd.setFrameListener([&] { told = lcd.picture().frame; });
    lcd.paint();
    EXPECT_EQ(told, 0U);
    for (std::uint64_t frame = 2; frame <= 3; ++frame) {
        lcd.invalidate({0, 0, 9, 9});
        lcd.paint();
        EXPECT_EQ(told, frame);
    }
    lcd.setFrameListener({});
    lcd.invalidate({0, 0, 9, 9});
    lcd.paint();
    EXPECT_EQ(told, 3U);
}

TEST_F(LcdTest, UpdatePaintsOnlyWhenAFrameIsDue)
{
    while (lcd.untilFrameDue() > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(lcd.untilFrameDue()));
    lcd.invalidate({0, 0, 9, 9});
    const auto start = std::chrono::steady_clock::now();
    lcd.Update();
    EXPECT_FALSE(lcd.isDirty());
    lcd.invalidate({0, 0, 9, 9});
    lcd.Update();
    const bool tooEarly = std::chrono::steady_clock::now() - start < std::chrono::milliseconds(16);
    EXPECT_TRUE(lcd.isDirty() || !tooEarly);
    while (lcd.untilFrameDue() > 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(lcd.untilFrameDue()));
    lcd.Update();
    EXPECT_FALSE(lcd.isDirty());
}

TEST_F(LcdTest, PictureCanBeTakenByAnyThreadWhileFramesArePainted)
{
    Patch patch({0, 0, 239, 127}, Level::DARK, "text");
    gpPresent->Add(&patch);
    lcd.paint();
    std::atomic<bool> done{false};
    std::thread reader([&] {
        while (!done) {
            const Picture picture = lcd.picture();
            EXPECT_EQ(picture.texts.size(), 1U);
            EXPECT_EQ(picture.pixels.back(), 3);
        }
    });
    for (int frame = 0; frame < 200; ++frame) {
        patch.Invalidate();
        lcd.paint();
    }
    done = true;
    reader.join();
}

TEST_F(LcdTest, ThereIsNoneWithoutToolkit)
{
    pegCleanUp();
    EXPECT_EQ(Lcd::current(), nullptr);
    pegInit();
    EXPECT_NE(Lcd::current(), nullptr);
}

} // namespace

TEST_F(LcdTest, TextsTellWhoHasPaintedThem)
{
    PegThing parent;
    Patch child({0, 0, 79, 15}, Level::BARE, "child");
    parent.Resize({0, 0, 99, 99});
    parent.Add(&child);
    SystemWindow window;
    window.setSystemWindowTop(50, false, false);
    window.setSystemWindowSize(1);
    window.setSystemWindowText(0, "window");
    gpPresent->Add(&parent);
    gpPresent->Add(&window);
    lcd.paint();
    const auto runs = lcd.picture().texts;
    ASSERT_EQ(texts(), (std::vector<std::string>{"child", "window"}));
    EXPECT_EQ(runs[0].widget, TYPE_THING);
    EXPECT_EQ(runs[1].widget, TYPE_SYSTEM_WINDOW);
    parent.Remove(&child);
    gpPresent->Remove(&parent);
}

TEST_F(LcdTest, PictureKnowsTheFocus)
{
    constexpr PegRect NOWHERE{0, 0, -1, -1};
    Patch one({0, 0, 9, 9}, Level::DARK);
    Patch other({20, 20, 29, 29}, Level::DARK);
    gpPresent->Add(&one);
    gpPresent->Add(&other);
    lcd.paint();
    EXPECT_EQ(lcd.picture().focus, NOWHERE);
    gpPresent->MoveFocusTree(&one);
    lcd.paint();
    EXPECT_EQ(lcd.picture().focus, one.Area());
    gpPresent->MoveFocusTree(&other);
    EXPECT_TRUE(lcd.isDirty());
    lcd.paint();
    EXPECT_EQ(lcd.picture().focus, other.Area());
    other.Resize({30, 30, 39, 39});
    lcd.paint();
    EXPECT_EQ(lcd.picture().focus, other.Area());
    gpPresent->Remove(&other);
    lcd.paint();
    EXPECT_EQ(lcd.picture().focus, NOWHERE);
}

TEST_F(LcdTest, MoveOfTheFocusAloneMakesAFrameThatPaintsNothing)
{
    Patch one({0, 0, 9, 9}, Level::DARK);
    gpPresent->Add(&one);
    lcd.paint();
    one.clips.clear();
    int frames = 0;
    lcd.setFrameListener([&] { ++frames; });
    gpPresent->MoveFocusTree(&one);
    lcd.paint();
    lcd.paint();
    EXPECT_EQ(frames, 1);
    EXPECT_TRUE(one.clips.empty());
    lcd.setFrameListener({});
}

} // namespace host
