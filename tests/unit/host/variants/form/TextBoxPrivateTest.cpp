// What a text box shows, and what the user does on it.

#include "DisplayAPI/TextBox.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "unit/host/variants/form/FormVariantTest.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TextBoxPrivateTest : public test::FormVariantTest {
protected:
    TextBoxPrivateTest()
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](Command* command, Displayable* shownBox) {
            EXPECT_EQ(shownBox, box.get());
            const std::vector<std::pair<Command*, const char*>> names{{TextBox::SELECT_COMMAND(), "select"},
                                                                      {TextBox::RIGHT_COMMAND(), "right"},
                                                                      {TextBox::BACK_COMMAND(), "back"}};
            for (const auto& [known, name] : names)
                if (known == command)
                    raised.emplace_back(name);
        });
        box->addCommandListener(&listener);
    }

    void setText(std::string text, bool cursorAtEnd = true) { box->setText(text, cursorAtEnd); }
    void open() { display.setCurrent(box.get()); }
    std::string shown() { return box->getPrivateImpl()->serialise(); }
    static std::string asText(const std::string& contents) { return "object:\nname:TextBox\n" + contents + "end:\n"; }

    std::unique_ptr<TextBox> box = std::make_unique<TextBox>(false);
};

TEST_P(TextBoxPrivateTest, ShowsItsTitleAndText)
{
    box->setTitle("Notes");
    setText("Zoë");
    open();
    EXPECT_EQ(shown(), asText("caption:Notes\nstring0:Zoë\n"));
    EXPECT_EQ(box->getText(), "Zoë");
    EXPECT_EQ(box->getSize(), 3);
}

TEST_P(TextBoxPrivateTest, TwoLinesOfTheSmallPanelHaveNoRoomForTheTitle)
{
    box = std::make_unique<TextBox>(true);
    box->setTitle("Notes");
    setText("Milk");
    open();
    EXPECT_EQ(shown(), asText(isSmall() ? "string0:Milk\n" : "caption:Notes\nstring0:Milk\n"));
}

TEST_P(TextBoxPrivateTest, StatusLinesStandAboveWhereThereIsRoom)
{
    box->setTitle("Notes");
    setText("Milk");
    open();
    display.setSystemWindowText(0, "Busy");
    display.setSystemWindowSize(1);
    const std::string lines = "subitem:\nname:SystemWindow\nstring0:Busy\nendsubitem:\n";
    EXPECT_EQ(shown(), asText("caption:Notes\n" + (isSmall() ? "" : lines) + "string0:Milk\n"));
}

TEST_P(TextBoxPrivateTest, SmallPanelShowsOneLineAlsoWithoutATitle)
{
    setText("Milk\nBread\nEggs", false);
    open();
    EXPECT_EQ(shown(), asText(isSmall() ? "string0:Milk\n" : "string0:Milk\nstring1:Bread\nstring2:Eggs\n"));
}

TEST_P(TextBoxPrivateTest, LinesThatAreOutOfSightAreNotInTheText)
{
    box = std::make_unique<TextBox>(true);
    std::string lines;
    for (int line = 1; line < 30; ++line)
        lines += std::to_string(line) + "\n";
    setText(lines + "end", true);
    open();
    EXPECT_EQ(shown().find("string0:1\n"), std::string::npos);
    EXPECT_NE(shown().find(":end\n"), std::string::npos);
    const std::string ofTwo = asText("string0:29\nstring1:end\n");
    EXPECT_EQ(shown() == ofTwo, isSmall());
}

TEST_P(TextBoxPrivateTest, ObserverIsToldWhenOtherLinesComeIntoSight)
{
    box = std::make_unique<TextBox>(true);
    setText("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11", false);
    open();
    EXPECT_EQ(changesBy([&] { press(PK_DOWN); }), 0);
    EXPECT_EQ(changesBy([&] {
                  press({PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN, PK_DOWN});
              }),
              isSmall() ? 7 : 2);
}

TEST_P(TextBoxPrivateTest, TitleThatHasNoPlaceIsNoCaption)
{
    for (const bool twoLine : {false, true}) {
        box = std::make_unique<TextBox>(twoLine);
        box->setTitle("Notes");
        auto* const side = dynamic_cast<DisplayablePrivate*>(box->getPrivateImpl());
        EXPECT_EQ(side->hasCaption(), !(isSmall() && twoLine));
    }
}

TEST_P(TextBoxPrivateTest, KeyThatIsHeldWhenAPopupComesActsNoMore)
{
    setText("abc");
    open();
    press(PK_LEFT);
    PopupNotification call;
    display.setCurrent(&call);
    time.pass(5000);
    EXPECT_EQ(box->getText(), "abc");
}

TEST_P(TextBoxPrivateTest, FirstLeftBehindATextReadFromTheRightStays)
{
    setText("زوي");
    open();
    changeLanguage("ar");
    press({'0', PK_LEFT});
    EXPECT_THAT(raised, IsEmpty());
    press(PK_LEFT);
    EXPECT_THAT(raised, ElementsAre("back"));
}

TEST_P(TextBoxPrivateTest, FlagPutsTheCursorAtTheTextsEndOrItsBeginning)
{
    open();
    setText("bc", true);
    press('2');
    EXPECT_EQ(box->getText(), "bca");
    setText("bc", false);
    press('2');
    EXPECT_EQ(box->getText(), "abc");
}

TEST_P(TextBoxPrivateTest, ArrowsAreRaisedAtTheTextsEndsAndOkAnywhere)
{
    setText("ab");
    open();
    press({PK_OK, PK_LEFT, PK_LEFT});
    EXPECT_THAT(raised, ElementsAre("select"));
    press({PK_LEFT, PK_RIGHT, PK_RIGHT});
    EXPECT_THAT(raised, ElementsAre("select", "back"));
    press({PK_RIGHT, PK_UP, PK_DOWN});
    EXPECT_THAT(raised, ElementsAre("select", "back", "right"));
}

TEST_P(TextBoxPrivateTest, ListenerIsAddedOnceAndMayGo)
{
    box->addCommandListener(&listener);
    open();
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("select"));
    box->removeCommandListener(&listener);
    press(PK_OK);
    EXPECT_THAT(raised, ElementsAre("select"));
}

TEST_P(TextBoxPrivateTest, MaximumCutsOffWhatIsBeyond)
{
    EXPECT_EQ(box->getMaxSize(), 1000);
    setText("Ångström");
    box->setMaxSize(3);
    EXPECT_EQ(box->getMaxSize(), 3);
    EXPECT_EQ(box->getText(), "Ång");
    open();
    press('2');
    EXPECT_EQ(box->getText(), "Ång");
    box->setMaxSize(-5);
    EXPECT_EQ(box->getMaxSize(), 0);
    EXPECT_EQ(box->getSize(), 0);
}

TEST_P(TextBoxPrivateTest, ClearLeavesNothing)
{
    setText("ab");
    box->clear();
    EXPECT_EQ(box->getText(), "");
    EXPECT_EQ(box->getSize(), 0);
}

TEST_P(TextBoxPrivateTest, TranslatedTextsFollowTheLanguageUntilTheUserTypes)
{
    TranslationInfo title("notes", &dictionary), text("milk", &dictionary);
    box->setTitle(&title);
    box->setText(&text);
    open();
    changeLanguage("de");
    EXPECT_EQ(shown(), asText("caption:de:notes\nstring0:de:milk\n"));
    press('2');
    EXPECT_EQ(box->getText(), "ade:milk");
    changeLanguage("fr");
    EXPECT_EQ(shown(), asText("caption:fr:notes\nstring0:ade:milk\n"));
    box->setText(static_cast<TranslationInfo*>(nullptr));
    EXPECT_EQ(box->getText(), "");
}

TEST_P(TextBoxPrivateTest, PopupGivesItBackAsItWas)
{
    setText("ac");
    open();
    press(PK_LEFT);
    PopupNotification call;
    display.setCurrent(&call);
    call.dismiss();
    press('2');
    EXPECT_EQ(box->getText(), "aac");
}

TEST_P(TextBoxPrivateTest, HidingTakesItOffItsDisplay)
{
    setText("Milk");
    open();
    box->hide();
    EXPECT_EQ(display.getCurrent(), nullptr);
    box->hide();
    open();
    EXPECT_EQ(display.getCurrent(), box.get());
    EXPECT_EQ(box->getText(), "Milk");
}

/// Nobody tells it that the key has gone up.
TEST_P(TextBoxPrivateTest, HeldKeyEndsWhereTheBoxLeavesTheScreen)
{
    const auto dismiss = [&] {
        auto* const side = dynamic_cast<DisplayablePrivate*>(box->getPrivateImpl());
        side->widgetDismissed(side);
    };
    for (const std::function<void()>& leave :
         {std::function<void()>([&] { box->hide(); }), std::function<void()>(dismiss),
          std::function<void()>([&] { display.setCurrent(nullptr); })}) {
        setText("Milk");
        open();
        press(PK_LEFT);
        leave();
        time.pass(5000);
        EXPECT_EQ(box->getText(), "Milk");
        open();
        EXPECT_EQ(box->getText(), "Milk");
    }
    open();
    press(PK_LEFT);
    box.reset();
    time.pass(5000);
}

TEST_P(TextBoxPrivateTest, OneThatIsDeletedLeavesItsDisplay)
{
    open();
    box.reset();
    EXPECT_EQ(display.getCurrent(), nullptr);
}

TEST_P(TextBoxPrivateTest, AnswersWithNothingWhenItsWidgetHasGone)
{
    setText("Milk");
    delete box->getPrivateImpl()->getWidget();
    EXPECT_EQ(box->getText(), "");
    EXPECT_EQ(box->getSize(), -1);
    EXPECT_EQ(shown(), "");
    setText("Bread");
    box->setTitle("Notes");
    box->setMaxSize(3);
    box->clear();
    EXPECT_EQ(box->getMaxSize(), 3);
}

TEST_P(TextBoxPrivateTest, WhatChangesIsToldOnce)
{
    open();
    const std::vector<std::function<void()>> changes{
        [&] { setText("Milk"); }, [&] { box->setTitle("Notes"); }, [&] { box->setMaxSize(2); }, [&] { box->clear(); },
        [&] { press('2'); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i)
        EXPECT_EQ(changesBy(changes[i]), 1) << i;
}

INSTANTIATE_ON_PANELS(TextBoxPrivateTest);

} // namespace
