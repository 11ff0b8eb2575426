#include "unit/host/variants/idle/IdleDisplayVariantTest.h"

using namespace DisplayAPI;
using testing::IsEmpty;

namespace {

class IdleDisplayDialerTest : public test::IdleDisplayVariantTest {
protected:
    std::string dialled() { return idle->getDialer()->getLineEditText(); }
    bool isDialing() { return display.getCurrent() == idle->getDialer(); }
};

TEST_P(IdleDisplayDialerTest, DigitOpensNothingUnlessItIsAskedFor)
{
    press("1");
    EXPECT_EQ(display.getCurrent(), idle.get());
    idle->showDiallerOnInitialKeyEvent(true);
    idle->showDiallerOnInitialKeyEvent(false);
    press("1");
    EXPECT_EQ(display.getCurrent(), idle.get());
}

TEST_P(IdleDisplayDialerTest, DigitOpensADialerWithItselfInTheLine)
{
    idle->showDiallerOnInitialKeyEvent(true);
    press("5");
    EXPECT_TRUE(isDialing());
    EXPECT_EQ(dialled(), "5");
    press("67");
    EXPECT_EQ(dialled(), "567");
}

TEST_P(IdleDisplayDialerTest, DialerOfTheApplicationIsTheOneThatOpens)
{
    PopupDialer dialer(true, 3);
    idle->addDialer(&dialer);
    idle->showDiallerOnInitialKeyEvent(true);
    press("*");
    EXPECT_EQ(display.getCurrent(), &dialer);
    EXPECT_EQ(dialer.getLineEditText(), "*");
    dialer.dismiss();
    idle->addDialer(nullptr);
    press("7");
    EXPECT_TRUE(isDialing());
    EXPECT_EQ(dialer.getLineEditText(), "*");
}

TEST_P(IdleDisplayDialerTest, IdleScreenIsBackWhenTheDialerGoes)
{
    idle->showDiallerOnInitialKeyEvent(true);
    press("1");
    press(PK_LEFT);
    press(PK_LEFT);
    EXPECT_EQ(display.getCurrent(), idle.get());
    EXPECT_THAT(raised, IsEmpty());
    press("2");
    EXPECT_TRUE(isDialing());
    EXPECT_EQ(dialled(), "2");
}

TEST_P(IdleDisplayDialerTest, DigitInTheMenuClosesIt)
{
    addCommands();
    press(PK_OK);
    press("1");
    EXPECT_TRUE(shows("MenuItem")) << "no dialer is asked for";
    idle->showDiallerOnInitialKeyEvent(true);
    press("1");
    EXPECT_TRUE(isDialing());
    EXPECT_FALSE(shows("MenuItem"));
}

TEST_P(IdleDisplayDialerTest, DialerGoesWithTheIdleDisplayThatHasMadeIt)
{
    idle->showDiallerOnInitialKeyEvent(true);
    press("1");
    idle.reset();
    EXPECT_EQ(display.getCurrent(), nullptr);
}

INSTANTIATE_ON_PANELS(IdleDisplayDialerTest);

} // namespace
