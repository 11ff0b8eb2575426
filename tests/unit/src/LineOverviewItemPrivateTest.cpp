#include "LineOverviewItemPrivate.h"

#include "doubles/Mocks.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/RunningToolkit.h"
#include "support/VirtualTime.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gmock/gmock.h>

#include <functional>

using namespace DisplayAPI;
using testing::_;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Mock;
using testing::Return;

namespace {

class LineOverviewItemPrivateTest : public test::VirtualTime, public testing::Test {
protected:
    LineOverviewItemPrivateTest() { makeLine("4711", nullptr); }

    void makeLine(const std::string& number, TranslationInfo* linePrefix)
    {
        line = std::make_unique<LineOverviewItemPrivate>(LineOverviewItem::IDLE, "Büro", number, linePrefix);
    }

    LineOverviewListItem& row() { return dynamic_cast<LineOverviewListItem&>(*line->getKestrelListItem()); }

    std::vector<std::string> texts()
    {
        std::vector<std::string> all;
        for (const PegString& text : row().describe().texts)
            all.push_back(ICC::fromUNICODEtoUTF8(text));
        return all;
    }

    /// The line's prefix, which is looked up once for each refresh from now on.
    void countRefreshes()
    {
        line->setLineNamePrefix(&prefix);
        Mock::VerifyAndClearExpectations(&translator);
    }

    void expectRefreshes(int count) { EXPECT_CALL(translator, translate(_)).Times(count); }

    test::StartedToolkit toolkit;
    testing::NiceMock<doubles::MockTranslator> translator;
    TranslationInfo prefix{"Prefix", &translator};
    TranslationInfo identity{"Identity", &translator};
    std::unique_ptr<LineOverviewItemPrivate> line;
};

/// The row in a list on the panel, and how often the list tells that it has changed.
class ToldList : public PegThing {
public:
    explicit ToldList(KestrelListBoxItem& row) : mList(new KestrelListBoxWithTitle)
    {
        mList->append(&row);
        mList->setMessageTarget(this);
        gpPresent->Add(mList);
    }

    ~ToldList() override { delete mList; }
    ToldList(const ToldList&) = delete;
    ToldList& operator=(const ToldList&) = delete;

    int Message(const PegMessage& message) override
    {
        changes += message.wType == PM_ROW_CHANGED ? 1 : 0;
        return 0;
    }

    int changes = 0;

private:
    KestrelListBox* mList;
};

using State = LineOverviewItem::LineState;
using Sign = LineOverviewListItem::Sign;

} // namespace

TEST_F(LineOverviewItemPrivateTest, EachStateHasItsSign)
{
    const std::vector<std::pair<State, Sign>> signs{
        {LineOverviewItem::IDLE, LineOverviewListItem::FREE},
        {LineOverviewItem::DIALLING, LineOverviewListItem::DIALS},
        {LineOverviewItem::RINGING, LineOverviewListItem::RINGS},
        {LineOverviewItem::IN_USE, LineOverviewListItem::TALKS},
        {LineOverviewItem::HELD, LineOverviewListItem::HOLDS},
        {LineOverviewItem::HELD_BY_OTHER, LineOverviewListItem::IS_HELD},
        {LineOverviewItem::CONFERENCE, LineOverviewListItem::CONFERS},
        {LineOverviewItem::FORWARDED, LineOverviewListItem::FORWARDS},
        {LineOverviewItem::MESSAGE_WAITING, LineOverviewListItem::HAS_LETTER},
        {LineOverviewItem::DO_NOT_DISTURB, LineOverviewListItem::KEEPS_QUIET},
        {LineOverviewItem::NOT_REGISTERED, LineOverviewListItem::IS_BARRED},
        {LineOverviewItem::FAILED, LineOverviewListItem::HAS_FAILED},
        {static_cast<State>(12), LineOverviewListItem::NO_SIGN},
        {static_cast<State>(-1), LineOverviewListItem::NO_SIGN}};
    for (const auto& [state, sign] : signs) {
        line->setLineState(state);
        EXPECT_EQ(row().sign(), sign) << state;
        EXPECT_EQ(row().isDimmed(), state == LineOverviewItem::NOT_REGISTERED) << state;
    }
}

TEST_F(LineOverviewItemPrivateTest, IdentityIsTheOneSetLastInWhicheverForm)
{
    ON_CALL(translator, translate("Identity")).WillByDefault(Return("none"));
    line->setLineIdentity(&identity);
    EXPECT_THAT(texts(), ElementsAre("Büro", "none"));
    line->setLineIdentity(std::string("4712"));
    EXPECT_THAT(texts(), ElementsAre("Büro", "4712"));
    line->localeChanged("de");
    EXPECT_THAT(texts(), ElementsAre("Büro", "4712"));
}

TEST_F(LineOverviewItemPrivateTest, WithoutATranslationTheIdentityIsTheTextAgain)
{
    line->setLineIdentity(&identity);
    EXPECT_THAT(texts(), ElementsAre("Büro"));
    line->setLineIdentity(static_cast<TranslationInfo*>(nullptr));
    EXPECT_THAT(texts(), ElementsAre("Büro", "4711"));
}

TEST_F(LineOverviewItemPrivateTest, NoPrefixIsNoText)
{
    TranslationInfo line1("Line 1", nullptr);
    line->setLineNamePrefix(&line1);
    EXPECT_THAT(texts(), ElementsAre("Line 1 Büro", "4711"));
    line->setLineNamePrefix(nullptr);
    EXPECT_THAT(texts(), ElementsAre("Büro", "4711"));
}

TEST_F(LineOverviewItemPrivateTest, TranslationsFollowTheLanguageOfTheApplication)
{
    ON_CALL(translator, translate("Prefix")).WillByDefault(Return("Line"));
    ON_CALL(translator, translate("Identity")).WillByDefault(Return("none"));
    makeLine("4711", &prefix);
    line->setLineIdentity(&identity);
    EXPECT_THAT(texts(), ElementsAre("Line Büro", "none"));
    ON_CALL(translator, translate("Prefix")).WillByDefault(Return("Leitung"));
    ON_CALL(translator, translate("Identity")).WillByDefault(Return("keine"));
    KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE("de"));
    EXPECT_THAT(texts(), ElementsAre("Leitung Büro", "keine"));
    KestrelApplication::getCurrentApplication()->setLocale(PegString());
}

TEST_F(LineOverviewItemPrivateTest, EachChangeIsToldToTheList)
{
    const std::vector<std::function<void()>> changes{
        [&] { line->setLineState(LineOverviewItem::HELD); },
        [&] { line->setDisplayHDIconStatus(true); },
        [&] { line->setLineNamePrefix(&prefix); },
        [&] { line->setLineIdentity(&identity); },
        [&] { line->setLineIdentity(std::string("4712")); },
        [&] { line->setLineName("Lab"); },
        [&] { line->holdItem(1000); },
        [&] { pass(1000); },
    };
    ON_CALL(translator, translate(_)).WillByDefault(testing::ReturnArg<0>());
    ToldList told(row());
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        EXPECT_EQ(told.changes, static_cast<int>(i) + 1);
    }
}

TEST_F(LineOverviewItemPrivateTest, ListTellsItOfTheLanguageAsWell)
{
    countRefreshes();
    expectRefreshes(1);
    line->localeChanged("de");
}

TEST_F(LineOverviewItemPrivateTest, OtherMessagesAreTakenAndHaveNoEffect)
{
    countRefreshes();
    expectRefreshes(0);
    for (const std::uint16_t type : {PM_KEY, PM_CLICKED, PM_FOCUS_CHANGED}) {
        PegMessage message;
        message.wType = type;
        EXPECT_EQ(line->Message(message), 0);
    }
}

TEST_F(LineOverviewItemPrivateTest, HoldHighlightsTheRowAsLongAsItSays)
{
    countRefreshes();
    expectRefreshes(0);
    line->holdItem(2000);
    EXPECT_TRUE(row().isHighlighted());
    pass(1999);
    EXPECT_TRUE(row().isHighlighted());
    Mock::VerifyAndClearExpectations(&translator);
    expectRefreshes(1);
    pass(1);
    EXPECT_FALSE(row().isHighlighted());
    line->holdItem(0); // there is none any more
    pass(10'000);
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(LineOverviewItemPrivateTest, HoldBeginsAnewAfterOneRefresh)
{
    countRefreshes();
    expectRefreshes(1);
    line->holdItem(2000);
    pass(1500);
    line->holdItem(1000);
    EXPECT_TRUE(row().isHighlighted());
    pass(999);
    EXPECT_TRUE(row().isHighlighted());
    Mock::VerifyAndClearExpectations(&translator);
    pass(1);
    EXPECT_FALSE(row().isHighlighted());
}

TEST_F(LineOverviewItemPrivateTest, HoldOfZeroEndsOneAfterOneRefresh)
{
    for (const int end : {0, -1}) {
        countRefreshes();
        expectRefreshes(1);
        line->holdItem(2000);
        line->holdItem(end);
        EXPECT_FALSE(row().isHighlighted());
        EXPECT_FALSE(isTimerRunning());
        line->holdItem(end);
        Mock::VerifyAndClearExpectations(&translator);
    }
}

TEST_F(LineOverviewItemPrivateTest, HoldOfZeroWithoutOneDoesNothing)
{
    countRefreshes();
    expectRefreshes(0);
    line->holdItem(0);
    line->holdItem(-1);
    EXPECT_FALSE(row().isHighlighted());
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(LineOverviewItemPrivateTest, HoldOutlastsWhatElseChanges)
{
    line->holdItem(2000);
    line->setLineState(LineOverviewItem::HELD);
    line->setLineName("Lab");
    line->localeChanged("de");
    EXPECT_TRUE(row().isHighlighted());
}

TEST_F(LineOverviewItemPrivateTest, EndsWithItsTimers)
{
    line->holdItem(2000);
    line.reset();
    EXPECT_FALSE(isTimerRunning());
}

TEST_F(LineOverviewItemPrivateTest, ReleasedToolkitRowIsNotDeletedWithIt)
{
    EXPECT_TRUE(line->hasOwnership());
    line->releaseOwnership();
    EXPECT_FALSE(line->hasOwnership());
    const std::unique_ptr<KestrelListBoxItem> item(line->getKestrelListItem());
    line.reset();
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(item->DataGet()), "Büro");
}

TEST_F(LineOverviewItemPrivateTest, ToolkitRowTakenBackIsDeletedAgain)
{
    line->releaseOwnership();
    line->gainOwnership();
    EXPECT_TRUE(line->hasOwnership());
}
