#include "unit/host/variants/list/ListVariantTest.h"

#include "DisplayAPI/Ticker.h"
#include "DisplayAPI/TickerPrivateIfc.h"
#include "host/lcd/Geometry.h"
#include "support/VirtualTime.h"

#include <memory>
#include <optional>

using DisplayAPI::Ticker;
using test::VirtualTime;

namespace {

const std::string LONG = "The canteen is closed on Friday; sandwiches are to be had at the gate.";

/// Learns of the end of a thing: its child dies with it.
class WatchedThing {
public:
    explicit WatchedThing(PegThing& thing) { thing.Add(new Child(mGone)); }
    bool isGone() const { return *mGone; }

private:
    class Child : public PegThing {
    public:
        explicit Child(std::shared_ptr<bool> gone) : mGone(std::move(gone)) {}
        ~Child() override { *mGone = true; }

    private:
        std::shared_ptr<bool> mGone;
    };

    std::shared_ptr<bool> mGone = std::make_shared<bool>(false);
};

/// A list with a title and ten rows, and what may run there.
template <typename Variant>
class ListTickerTest : public VirtualTime, public test::ListVariantTest<Variant> {
protected:
    using ListBox = typename Variant::ListBox;

    ListTickerTest()
    {
        this->attach(*list);
        list->setTitle(std::string("Menu"));
        for (auto& row : rows)
            list->append(row.get());
        this->display.changes = 0;
    }

    KestrelListBox& box() { return this->boxOf(*list); }

    void show(Ticker* shown, ListBox& on) { on.setTicker(shown != nullptr ? shown->getPrivateImpl() : nullptr); }
    void show(Ticker* shown) { show(shown, *list); }

    PegThing* widgetOf(Ticker& one) { return one.getPrivateImpl()->getWidget(); }

    /// The texts that run, on the panel.
    std::vector<std::string> running()
    {
        host::Lcd::current()->paint();
        std::vector<std::string> texts;
        for (const host::TextRun& run : host::Lcd::current()->picture().texts)
            if (run.runs)
                texts.push_back(run.text);
        return texts;
    }

    bool isOnPanel(const std::string& text)
    {
        host::Lcd::current()->paint();
        const auto texts = host::Lcd::current()->picture().texts;
        return std::any_of(texts.begin(), texts.end(), [&](const host::TextRun& run) { return run.text == text; });
    }

    static std::vector<std::unique_ptr<typename Variant::Row>> tenRows()
    {
        std::vector<std::unique_ptr<typename Variant::Row>> made;
        for (int i = 0; i < 10; ++i)
            made.push_back(std::make_unique<typename Variant::Row>("Row " + std::to_string(i), true));
        return made;
    }

    std::optional<Ticker> ticker{std::in_place, LONG};
    std::optional<Ticker> other{std::in_place, "Other"};
    std::vector<std::unique_ptr<typename Variant::Row>> rows = tenRows();
    std::optional<ListBox> list{std::in_place, &this->owner, false};
    ListBox another{&this->owner, false};
};

TYPED_TEST_SUITE(ListTickerTest, test::Variants);

TYPED_TEST(ListTickerTest, TickerStandsInItsPlaceOnTheList)
{
    this->show(&*this->ticker);
    EXPECT_EQ(this->widgetOf(*this->ticker)->Parent(), &this->box());
    EXPECT_EQ(this->widgetOf(*this->ticker)->Area(), this->box().tickerArea());
    EXPECT_FALSE(host::isEmpty(this->box().tickerArea()));
    EXPECT_EQ(this->display.changes, 0) << "the list is not on the screen";
}

TYPED_TEST(ListTickerTest, ListOnScreenShowsItAndTellsTheDisplayOnce)
{
    this->putOnScreen(*this->list);
    this->show(&*this->ticker);
    EXPECT_THAT(this->running(), testing::ElementsAre(LONG));
    EXPECT_EQ(this->display.changes, 1);
    EXPECT_TRUE(this->isTimerRunning());
    this->putAway(*this->list);
    EXPECT_FALSE(this->isTimerRunning());
}

TYPED_TEST(ListTickerTest, SameTickerAgainRunsOnUndisturbed)
{
    this->putOnScreen(*this->list);
    this->show(&*this->ticker);
    this->pass(2000);
    host::Lcd::current()->paint();
    const auto due = host::Clock::instance().timerDue();
    this->show(&*this->ticker);
    EXPECT_EQ(host::Clock::instance().timerDue(), due);
    EXPECT_FALSE(host::Lcd::current()->isDirty());
    EXPECT_EQ(this->display.changes, 1);
    this->putAway(*this->list);
}

TYPED_TEST(ListTickerTest, TakesTheSpaceThatItLeavesAgain)
{
    const auto rowsInView = [&] {
        int count = 0;
        for (int row = 0; row < this->box().numItems(); ++row)
            count += !host::isEmpty(this->box().rowArea(row));
        return count;
    };
    this->putOnScreen(*this->list);
    const int before = rowsInView();
    EXPECT_TRUE(this->isOnPanel("Menu"));
    this->show(&*this->ticker);
    const bool wp1 = this->box().Type() == TYPE_LIST_WP1;
    EXPECT_EQ(rowsInView(), wp1 ? before : before - 1);
    EXPECT_EQ(this->isOnPanel("Menu"), !wp1) << "in the title's place";
    this->show(nullptr);
    EXPECT_EQ(rowsInView(), before);
    EXPECT_TRUE(this->isOnPanel("Menu"));
    EXPECT_TRUE(host::isEmpty(this->box().tickerArea()));
    this->putAway(*this->list);
}

TYPED_TEST(ListTickerTest, ReplacedTickerCanBeChangedAndComesBack)
{
    this->putOnScreen(*this->list);
    this->show(&*this->ticker);
    this->show(&*this->other);
    EXPECT_THAT(this->running(), testing::ElementsAre("Other"));
    EXPECT_FALSE(this->isTimerRunning()) << "the other one fits, the first one is not visible";
    EXPECT_EQ(this->ticker->getText(), LONG);
    this->ticker->setText("Changed");
    EXPECT_THAT(this->running(), testing::ElementsAre("Other"));
    this->show(&*this->ticker);
    EXPECT_THAT(this->running(), testing::ElementsAre("Changed"));
    this->putAway(*this->list);
}

TYPED_TEST(ListTickerTest, TickerThatIsTakenAwayCanBeChangedAndComesBack)
{
    this->putOnScreen(*this->list);
    this->show(&*this->ticker);
    this->show(nullptr);
    EXPECT_THAT(this->running(), testing::IsEmpty());
    EXPECT_FALSE(this->isTimerRunning());
    this->ticker->setText("Changed");
    this->show(&*this->ticker);
    EXPECT_THAT(this->running(), testing::ElementsAre("Changed"));
    EXPECT_EQ(this->display.changes, 3);
    this->putAway(*this->list);
}

TYPED_TEST(ListTickerTest, NullOnAListWithoutOneChangesNothing)
{
    this->putOnScreen(*this->list);
    this->show(nullptr);
    EXPECT_EQ(this->display.changes, 0);
    this->putAway(*this->list);
}

TYPED_TEST(ListTickerTest, TickerGivenToAnotherListMovesThere)
{
    this->show(&*this->ticker);
    this->show(&*this->ticker, this->another);
    EXPECT_EQ(this->widgetOf(*this->ticker)->Parent(), &this->boxOf(this->another));
    EXPECT_TRUE(host::isEmpty(this->box().tickerArea()));
    this->list.reset();
    EXPECT_EQ(this->ticker->getText(), LONG);
}

TYPED_TEST(ListTickerTest, FormerTickerOfAListCanGoToAnother)
{
    this->show(&*this->ticker);
    this->show(&*this->other);
    this->show(&*this->ticker, this->another);
    this->list.reset();
    EXPECT_EQ(this->ticker->getText(), LONG);
    EXPECT_EQ(this->other->getText(), "");
}

TYPED_TEST(ListTickerTest, FormerTickersGoWithTheirList)
{
    this->show(&*this->ticker);
    this->show(&*this->other);
    this->show(nullptr);
    this->list.reset();
    EXPECT_EQ(this->ticker->getText(), "");
    EXPECT_EQ(this->other->getText(), "");
}

TYPED_TEST(ListTickerTest, TwoListsCanSwapTheirTickers)
{
    this->show(&*this->ticker);
    this->show(&*this->other, this->another);
    this->show(&*this->other);
    this->show(&*this->ticker, this->another);
    EXPECT_EQ(this->widgetOf(*this->other)->Area(), this->box().tickerArea());
    EXPECT_EQ(this->widgetOf(*this->ticker)->Area(), this->boxOf(this->another).tickerArea());
}

TYPED_TEST(ListTickerTest, TickerIsEmptyAfterItsListIsGoneAndNoListShowsIt)
{
    this->show(&*this->ticker);
    this->list.reset();
    EXPECT_EQ(this->ticker->getText(), "");
    this->ticker->setText("Changed");
    this->show(&*this->ticker, this->another);
    EXPECT_TRUE(host::isEmpty(this->boxOf(this->another).tickerArea()));
}

TYPED_TEST(ListTickerTest, TextStaysOnTheListWhenItsTickerIsDeleted)
{
    this->putOnScreen(*this->list);
    this->show(&*this->ticker);
    this->ticker.reset();
    EXPECT_THAT(this->running(), testing::ElementsAre(LONG));
    this->show(&*this->other);
    EXPECT_THAT(this->running(), testing::ElementsAre("Other"));
    this->putAway(*this->list);
}

TYPED_TEST(ListTickerTest, ListWhoseBoxIsGoneTakesTickersWithoutShowingThem)
{
    this->show(&*this->ticker);
    delete this->list->getWidget();
    EXPECT_EQ(this->ticker->getText(), "");
    this->show(&*this->other);
    EXPECT_EQ(this->other->getText(), "Other");
    this->list.reset();
    EXPECT_EQ(this->other->getText(), "");
}

TYPED_TEST(ListTickerTest, FormerTickersThatNobodyHasAnyMoreAreDropped)
{
    std::vector<std::unique_ptr<WatchedThing>> marks;
    for (int i = 0; i < 100; ++i) {
        Ticker news("News " + std::to_string(i));
        this->show(&news);
        marks.push_back(std::make_unique<WatchedThing>(*this->widgetOf(news)));
    }
    this->show(&*this->ticker);
    for (const auto& mark : marks)
        EXPECT_TRUE(mark->isGone());
    EXPECT_EQ(this->ticker->getText(), LONG);
}

TYPED_TEST(ListTickerTest, DroppedOnesLeaveThoseThatCanComeBack)
{
    std::optional<Ticker> news(std::in_place, "News");
    this->show(&*this->other);
    this->show(&*news);
    const WatchedThing mark(*this->widgetOf(*news));
    this->show(&*this->ticker);
    EXPECT_FALSE(mark.isGone());
    news.reset();
    this->show(nullptr);
    EXPECT_TRUE(mark.isGone());
    this->show(&*this->other);
    EXPECT_EQ(this->other->getText(), "Other");
    EXPECT_EQ(this->ticker->getText(), LONG);
}

TYPED_TEST(ListTickerTest, MovesWithTheList)
{
    this->show(&*this->ticker);
    this->box().Resize(host::rectAt(0, 10, 160, 90));
    EXPECT_EQ(this->widgetOf(*this->ticker)->Area(), this->box().tickerArea());
    EXPECT_TRUE(host::contains(this->box().Area(), this->box().tickerArea()));
}

TYPED_TEST(ListTickerTest, KeysStillMoveThroughTheRows)
{
    this->putOnScreen(*this->list);
    gpPresent->MoveFocusTree(this->list->getWidget());
    this->show(&*this->ticker);
    this->press(*this->list, PK_DOWN);
    EXPECT_EQ(this->list->getSelectedIndex(), 1);
    EXPECT_TRUE(this->list->getWidget()->StatusIs(PSF_CURRENT));
    this->putAway(*this->list);
}

} // namespace
