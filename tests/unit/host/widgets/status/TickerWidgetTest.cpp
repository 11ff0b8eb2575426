#include "widgets/TickerWidget.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Motion.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"
#include "toolkit/PegWindow.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>
#include <memory>

using host::Lcd;
using host::rectAt;
using host::TextRun;
using test::StartedToolkit;
using test::VirtualTime;
using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

namespace {

constexpr PegRect AREA{20, 50, 119, 67};
constexpr int REST = 1500;
constexpr int STEP = 40;
constexpr int PAGE = 4000;
constexpr int MARGIN = 6;
constexpr int GAP = 40;

const std::string LONG = "The canteen is closed on Friday; sandwiches are to be had at the gate.";
const std::string ARABIC = "المقصف مغلق يوم الجمعة، وتتوفر الشطائر عند البوابة الرئيسية للمبنى";

PegString unicode(const std::string& utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

class TickerWidgetTest : public VirtualTime, public testing::Test {
protected:
    ~TickerWidgetTest() override
    {
        host::Motion::reduce(false);
        ticker.reset();
        setLocale("");
    }

    static void setLocale(const std::string& locale)
    {
        KestrelApplication::getCurrentApplication()->setLocale(unicode(locale));
    }

    void show(const std::string& text)
    {
        ticker->setText(unicode(text));
        ticker->Resize(AREA);
        gpPresent->Add(ticker.get());
        paint();
    }

    void paint() { Lcd::current()->paint(); }

    bool isDirtyAfter(int ms)
    {
        paint();
        pass(ms);
        return Lcd::current()->isDirty();
    }

    /// The dark pixels of the text's place, column by column.
    std::vector<std::string> columns()
    {
        paint();
        const host::Picture picture = Lcd::current()->picture();
        std::vector<std::string> result;
        for (int x = AREA.left + MARGIN; x <= AREA.right - MARGIN; ++x) {
            result.emplace_back();
            for (int y = AREA.top; y <= AREA.bottom; ++y)
                result.back() += picture.pixels[static_cast<std::size_t>(y * picture.width + x)] == 0 ? '.' : '#';
        }
        return result;
    }

    std::vector<TextRun> texts()
    {
        paint();
        return Lcd::current()->picture().texts;
    }

    int width(const std::string& text) { return Lcd::current()->textWidth(host::Font::TEXT, unicode(text)); }

    /// Until the beginning stands at the edge again.
    int round(const std::string& text) { return REST + (width(text) + GAP + 1) / 2 * STEP; }

    StartedToolkit toolkit;
    std::unique_ptr<TickerWidget> ticker = std::make_unique<TickerWidget>(unicode(LONG));
};

/// What was seen, moved by so many columns; only those that both have.
bool isMoved(const std::vector<std::string>& before, const std::vector<std::string>& after, std::size_t by)
{
    return std::equal(before.begin() + static_cast<std::ptrdiff_t>(by), before.end(), after.begin());
}

TEST_F(TickerWidgetTest, IsATicker)
{
    EXPECT_EQ(ticker->Type(), TYPE_TICKER);
    EXPECT_EQ(ticker->getText(), unicode(LONG));
}

TEST_F(TickerWidgetTest, TextThatFitsStandsStillAndCostsNothing)
{
    show("Short");
    const auto before = columns();
    EXPECT_FALSE(isTimerRunning());
    EXPECT_FALSE(isDirtyAfter(10000));
    EXPECT_EQ(columns(), before);
    EXPECT_THAT(texts(), ElementsAre(AllOf(Field(&TextRun::text, "Short"), Field(&TextRun::runs, true),
                                           Field(&TextRun::area, Field(&PegRect::left, AREA.left + MARGIN)))));
}

TEST_F(TickerWidgetTest, TextThatFitsExactlyStandsStillAndAPixelLessMakesItRun)
{
    show(LONG);
    const int exactly = width(LONG) + 2 * MARGIN;
    ticker->Resize(rectAt(0, 0, exactly, 18));
    EXPECT_FALSE(isTimerRunning());
    ticker->Resize(rectAt(0, 0, exactly - 1, 18));
    EXPECT_TRUE(isTimerRunning());
}

TEST_F(TickerWidgetTest, EmptyTextShowsNothingAndCostsNothing)
{
    show("");
    EXPECT_THAT(texts(), IsEmpty());
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(TickerWidgetTest, LongTextRestsAndThenRunsTwoPixelsAtATime)
{
    show(LONG);
    const auto before = columns();
    EXPECT_FALSE(isDirtyAfter(REST - 1));
    pass(1);
    EXPECT_TRUE(isMoved(before, columns(), 2));
    EXPECT_FALSE(isDirtyAfter(STEP - 1));
    pass(1);
    EXPECT_TRUE(isMoved(before, columns(), 4));
    pass(10 * STEP);
    EXPECT_TRUE(isMoved(before, columns(), 24));
}

TEST_F(TickerWidgetTest, ItsTextIsWholeAndKeepsItsPlaceWhileItRuns)
{
    show(LONG);
    const auto before = texts();
    EXPECT_THAT(before, ElementsAre(AllOf(Field(&TextRun::text, LONG), Field(&TextRun::cut, false),
                                          Field(&TextRun::runs, true))));
    pass(REST + 7 * STEP);
    EXPECT_EQ(texts(), before);
    pass(round(LONG) / 2);
    EXPECT_EQ(texts(), before);
}

TEST_F(TickerWidgetTest, ComesRoundWithAGapAndRestsAgain)
{
    show(LONG);
    const auto before = columns();
    pass(REST + (width(LONG) - 20) / 2 * STEP);
    const auto atTheEnd = columns();
    EXPECT_THAT(std::vector(atTheEnd.begin() + 25, atTheEnd.begin() + 55),
                testing::Each(std::string(static_cast<std::size_t>(host::heightOf(AREA)), '.')));
    pass(round(LONG) - REST - (width(LONG) - 20) / 2 * STEP - STEP);
    EXPECT_EQ(columns(), before);
    EXPECT_FALSE(isDirtyAfter(REST - 1));
    pass(1);
    EXPECT_TRUE(isMoved(before, columns(), 2));
}

TEST_F(TickerWidgetTest, PaintsOnlyItsOwnArea)
{
    show(LONG);
    for (int i = 0; i < 100; ++i) {
        pass(STEP);
        paint();
    }
    const host::Picture picture = Lcd::current()->picture();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const bool inside = host::contains(AREA, rectAt(x, y, 1, 1));
            const auto pixel = picture.pixels[static_cast<std::size_t>(y * picture.width + x)];
            ASSERT_TRUE(inside || pixel == 0) << x << ", " << y;
        }
    }
}

TEST_F(TickerWidgetTest, NeighboursAreNotPaintedAgain)
{
    class Counting : public PegThing {
    public:
        void Draw(PegPainter&) override { ++paintings; }
        int paintings = 0;
    };
    Counting above;
    above.Resize(rectAt(AREA.left, AREA.top - 20, 100, 20));
    gpPresent->Add(&above);
    show(LONG);
    const int before = above.paintings;
    pass(REST + 20 * STEP);
    paint();
    EXPECT_EQ(above.paintings, before);
    gpPresent->Remove(&above);
}

TEST_F(TickerWidgetTest, TextFromRightToLeftBeginsAtTheRightAndRunsTheOtherWay)
{
    show(ARABIC);
    ASSERT_GT(width(ARABIC), 100);
    const auto before = columns();
    pass(REST + 4 * STEP);
    EXPECT_TRUE(isMoved(columns(), before, 10));
}

TEST_F(TickerWidgetTest, TextThatFitsStandsWhereTextsOfTheLanguageBegin)
{
    for (const char* text : {"مغلق", "Short"}) {
        setLocale("");
        show(text);
        EXPECT_FALSE(isTimerRunning());
        EXPECT_THAT(texts(), ElementsAre(Field(&TextRun::area, Field(&PegRect::left, AREA.left + MARGIN))));
        setLocale("ar");
        show(text);
        EXPECT_FALSE(isTimerRunning());
        EXPECT_THAT(texts(), ElementsAre(Field(&TextRun::area, Field(&PegRect::right, AREA.right - MARGIN))));
    }
}

TEST_F(TickerWidgetTest, CostsNothingWhileItIsNotOnTheScreen)
{
    EXPECT_FALSE(isTimerRunning());
    show(LONG);
    pass(REST + 5 * STEP);
    EXPECT_TRUE(isTimerRunning());
    gpPresent->Remove(ticker.get());
    EXPECT_FALSE(isTimerRunning());
    ticker->setText(unicode(LONG + LONG));
    ticker->Resize(rectAt(0, 0, 50, 18));
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(TickerWidgetTest, BeginsAnewWhenItIsShownAgain)
{
    show(LONG);
    const auto before = columns();
    pass(REST + 5 * STEP);
    gpPresent->Remove(ticker.get());
    gpPresent->Add(ticker.get());
    EXPECT_EQ(columns(), before);
    EXPECT_FALSE(isDirtyAfter(REST - 1));
}

TEST_F(TickerWidgetTest, GoesAndComesWithTheThingThatItStandsOn)
{
    PegThing below;
    below.Add(ticker.get());
    ticker->Resize(AREA);
    EXPECT_FALSE(isTimerRunning());
    gpPresent->Add(&below);
    EXPECT_TRUE(isTimerRunning());
    gpPresent->Remove(&below);
    EXPECT_FALSE(isTimerRunning());
    below.Remove(ticker.get());
}

TEST_F(TickerWidgetTest, RestsWhileSomethingCoversItAndBeginsAnewAfterwards)
{
    show(LONG);
    const auto before = columns();
    pass(REST + 5 * STEP);
    PegWindow popup;
    popup.Resize(rectAt(0, 40, 200, 60));
    gpPresent->Add(&popup);
    paint();
    pass(STEP);
    const auto due = host::Clock::instance().timerDue();
    EXPECT_EQ(due, host::Clock::instance().now() + REST);
    EXPECT_FALSE(isDirtyAfter(9 * REST));
    gpPresent->Remove(&popup);
    EXPECT_EQ(columns(), before);
    pass(REST);
    EXPECT_TRUE(isMoved(before, columns(), 2));
}

TEST_F(TickerWidgetTest, RunsOnWhenOnlyAPartOfItIsCovered)
{
    show(LONG);
    PegWindow popup;
    popup.Resize(rectAt(0, 40, 60, 60));
    gpPresent->Add(&popup);
    pass(REST);
    EXPECT_TRUE(isDirtyAfter(STEP));
    gpPresent->Remove(&popup);
}

TEST_F(TickerWidgetTest, WithLessMotionItTurnsPageByPageAndComesBack)
{
    host::Motion::reduce(true);
    show(LONG);
    const auto first = columns();
    const int page = static_cast<int>(first.size()) * 3 / 4;
    EXPECT_FALSE(isDirtyAfter(PAGE - 1));
    pass(1);
    const auto second = columns();
    EXPECT_TRUE(isMoved(first, second, static_cast<std::size_t>(page)));
    EXPECT_FALSE(isDirtyAfter(PAGE - 1));
    EXPECT_EQ(columns(), second);

    const int pages = (width(LONG) - static_cast<int>(first.size()) + page - 1) / page;
    pass((pages - 2) * PAGE + 1);
    EXPECT_NE(columns(), first);
    pass(PAGE);
    EXPECT_EQ(columns(), first);
}

TEST_F(TickerWidgetTest, FollowsWithItsNextStepWhenMotionIsReducedOrNot)
{
    show(LONG);
    pass(REST + 5 * STEP);
    host::Motion::reduce(true);
    pass(STEP);
    EXPECT_FALSE(isDirtyAfter(PAGE - 1));
    host::Motion::reduce(false);
    EXPECT_TRUE(isDirtyAfter(1));
    const auto before = columns();
    pass(STEP);
    EXPECT_TRUE(isMoved(before, columns(), 2));
}

TEST_F(TickerWidgetTest, NewTextBeginsAnew)
{
    show(LONG);
    pass(REST + 5 * STEP);
    ticker->setText(unicode("Short"));
    EXPECT_FALSE(isTimerRunning());
    EXPECT_THAT(texts(), ElementsAre(Field(&TextRun::text, "Short")));
    ticker->setText(unicode(LONG));
    EXPECT_TRUE(isTimerRunning());
    EXPECT_FALSE(isDirtyAfter(REST - 1));
}

TEST_F(TickerWidgetTest, SameAreaAgainDoesNotDisturbIt)
{
    show(LONG);
    pass(REST + 5 * STEP);
    const auto before = columns();
    ticker->Resize(AREA);
    EXPECT_EQ(columns(), before);
}

TEST_F(TickerWidgetTest, AreaWithoutRoomShowsNothing)
{
    show(LONG);
    for (const PegRect& area : {rectAt(0, 0, 0, 0), rectAt(0, 0, 2 * MARGIN, 18), rectAt(0, 0, 5, 18)}) {
        ticker->Resize(area);
        pass(REST + STEP);
        EXPECT_THAT(texts(), IsEmpty());
    }
}

TEST_F(TickerWidgetTest, HugeTextRunsWithoutItsEnd)
{
    const std::string huge(20000, 'W');
    show(huge);
    pass(REST + 3 * STEP);
    EXPECT_THAT(texts(), ElementsAre(Field(&TextRun::cut, true)));
    EXPECT_LE(width(huge), 8192);
}

TEST_F(TickerWidgetTest, DeletedWhileItRunsLeavesNothingBehind)
{
    show(LONG);
    pass(REST + STEP);
    ticker.reset();
    EXPECT_FALSE(isTimerRunning());
    EXPECT_THAT(texts(), IsEmpty());
}

} // namespace
