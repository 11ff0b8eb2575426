// The dialer of a list: a digit opens it.

#include "DisplayAPI/ExclusiveList.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "unit/host/variants/popup/DialerVariantTest.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ListDialerTest : public test::DialerVariantTest {
protected:
    ListDialerTest()
    {
        list.addDialer(dialer.get());
        list.showDiallerOnInitialKeyEvent(true);
    }

    ~ListDialerTest() override { list.addDialer(nullptr); }
};

TEST_P(ListDialerTest, DigitOpensItWithThisDigit)
{
    dialer->setLineEditText("old");
    type("4");
    EXPECT_EQ(display.getCurrent(), dialer.get());
    EXPECT_EQ(dialer->getLineEditText(), "4");
    EXPECT_THAT(raised, ElementsAre("edit"));
    type("5");
    EXPECT_EQ(dialer->getLineEditText(), "45");
}

TEST_P(ListDialerTest, StarAndHashOpenItAndOtherKeysDoNot)
{
    for (const int key : {PK_UP, PK_DOWN, PK_OK, PK_RIGHT, PK_VOLUME_UP, PK_HOOK})
        press(key);
    EXPECT_EQ(display.getCurrent(), &list);
    for (const char* key : {"*", "#"}) {
        type(key);
        EXPECT_EQ(dialer->getLineEditText(), key);
        dialer->dismiss();
    }
}

TEST_P(ListDialerTest, ZeroThatIsHeldOnTheListIsAPlus)
{
    press('0');
    time.pass(700);
    EXPECT_EQ(dialer->getLineEditText(), "+");
}

TEST_P(ListDialerTest, WithoutTheWishOrTheDialerNothingOpens)
{
    list.showDiallerOnInitialKeyEvent(false);
    type("4");
    EXPECT_EQ(display.getCurrent(), &list);
    list.showDiallerOnInitialKeyEvent(true);
    list.addDialer(nullptr);
    type("4");
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_THAT(raised, IsEmpty());
}

TEST_P(ListDialerTest, KeyThatTypesNothingOpensNothing)
{
    dialer->setLineEditText("old");
    dialer->setIgnoreKeypadEvents(true);
    type("4");
    EXPECT_EQ(display.getCurrent(), &list);
    dialer->setIgnoreKeypadEvents(false);
    dialer->setEditMode();
    type("#*");
    EXPECT_EQ(display.getCurrent(), &list);
    EXPECT_EQ(dialer->getLineEditText(), "old");
    type("2");
    EXPECT_EQ(dialer->getLineEditText(), "A");
}

TEST_P(ListDialerTest, AfterItTheListIsBackAndOpensItAgain)
{
    type("4");
    press(PK_LEFT);
    press(PK_LEFT);
    EXPECT_EQ(display.getCurrent(), &list);
    type("5");
    EXPECT_EQ(dialer->getLineEditText(), "5");
}

TEST_P(ListDialerTest, IsDismissedByTheListAndStaysItsOwn)
{
    type("4");
    dynamic_cast<ListBoxPrivateIfc&>(*list.getPrivateImpl()).dismissDialler();
    EXPECT_EQ(display.getCurrent(), &list);
    type("5");
    EXPECT_EQ(display.getCurrent(), dialer.get());
}

TEST_P(ListDialerTest, ExclusiveListsOpenTheirs)
{
    ExclusiveList tones;
    tones.append("Bell");
    tones.addDialer(dialer.get());
    tones.showDiallerOnInitialKeyEvent(true);
    display.setCurrent(&tones);
    type("4");
    EXPECT_EQ(dialer->getLineEditText(), "4");
    display.setCurrent(&list);
}

TEST_P(ListDialerTest, OpensOnTheDisplayOfItsList)
{
    Display latest(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    type("4");
    EXPECT_EQ(display.getCurrent(), dialer.get());
    EXPECT_EQ(latest.getCurrent(), nullptr);
}

TEST_P(ListDialerTest, ListWithoutADialersSideOpensNothing)
{
    PopupDialer empty(nullptr);
    list.addDialer(&empty);
    type("4");
    EXPECT_EQ(display.getCurrent(), &list);
}

INSTANTIATE_ON_PANELS(ListDialerTest);

} // namespace
