#include "DisplayAPI/CallBackMainItem.h"

#include "unit/host/variants/telephony/LogRowVariantTest.h"

using namespace DisplayAPI;
using namespace host::icons;
using testing::ElementsAre;

namespace {

using Type = CallBackMainItem::CallBackType;
using State = CallBackMainItem::CallBackState;
using CallBackMainItemPrivateTest = test::LogRowVariantTest;

TEST_P(CallBackMainItemPrivateTest, ShowsPartyAndText)
{
    auto& row = add<CallBackMainItem>(&ada, "10:41", Type::BUSY, State::WAITING);
    EXPECT_EQ(shown(), asText("CallBackMainItem", "string0:Ada\nstring1:10:41\n"));
    EXPECT_EQ(lookOf(row).lines.front().icon, &CALLBACK);
    EXPECT_FALSE(lookOf(row).lines.front().bold);
}

TEST_P(CallBackMainItemPrivateTest, MarksTellTypeAndState)
{
    const auto marksOf = [&](int type, int state) {
        return lookOf(add<CallBackMainItem>(&ada, "", static_cast<Type>(type), static_cast<State>(state))).marks;
    };
    EXPECT_THAT(marksOf(Type::BUSY, State::REQUESTED), ElementsAre(&NO_ENTRY, &QUESTION));
    EXPECT_THAT(marksOf(Type::NO_ANSWER, State::WAITING), ElementsAre(&BELL_OFF, &HOLD));
    EXPECT_THAT(marksOf(Type::OTHER_REASON, State::READY), ElementsAre(&CHECK));
    EXPECT_THAT(marksOf(7, 5), ElementsAre(&HOLD));
}

TEST_P(CallBackMainItemPrivateTest, UnknownFollowsTheLanguage)
{
    auto& row = add<CallBackMainItem>(nullptr, "", Type::BUSY, State::READY);
    EXPECT_THAT(linesOf(row), ElementsAre("en:Caller.Unknown.XXX"));
    changeLanguage("de");
    EXPECT_THAT(linesOf(row), ElementsAre("de:Caller.Unknown.XXX"));
}

INSTANTIATE_ON_PANELS(CallBackMainItemPrivateTest);

} // namespace
