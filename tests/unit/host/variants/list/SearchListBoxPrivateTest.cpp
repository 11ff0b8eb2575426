// A search list on the screen: its popup, its numbers, and what the keys do.

#include "DisplayAPI/SearchList.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/PopupNotification.h"
#include "DisplayAPI/SearchListBoxPrivateIfc.h"
#include "doubles/Mocks.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/ItemChanges.h"
#include "support/Keys.h"
#include "support/RowsOwner.h"
#include "support/VirtualTime.h"
#include "support/Worker.h"
#include "unit/host/variants/OnPanel.h"
#include "unit/host/variants/Told.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <memory>

using namespace DisplayAPI;
using testing::_;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// Says the key and the language.
class Translator : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return key + language; }

    std::string language;
};

/// A search list a b c on the screen. The test's thread is the GUI thread.
class SearchListBoxPrivateTest : public testing::TestWithParam<host::Variant> {
protected:
    SearchListBoxPrivateTest()
    {
        display.show();
        for (const char* text : {"a", "b", "c"})
            list->append(text);
        list->addCommandListener(&listener);
        display.setCurrent(list.get());
    }

    ~SearchListBoxPrivateTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    KestrelListBox& box() { return *dynamic_cast<KestrelListBox*>(list->getPrivateImpl()->getWidget()); }
    std::string rows() { return test::lettersOf(box()); }
    std::string shown() { return list->getPrivateImpl()->serialise(); }

    /// To whoever has the focus, as test::keyCode() has them. '2' to '9' type.
    static void press(const std::string& keys)
    {
        for (const char key : keys) {
            const int code = test::keyCode(key);
            gpPresent->Focus()->Message({.wType = PM_KEY, .iData = code});
            if (PegThing* const focus = gpPresent->Focus())
                focus->Message({.wType = PM_KEYRELEASE, .iData = code});
        }
    }

    void expectRaised(Command* command) { EXPECT_CALL(listener, postCommandAction(command, list.get())); }

    static std::string popup(const std::string& lines)
    {
        return "subitem:\nname:SearchPopup\n" + lines + "endsubitem:\n";
    }

    test::VirtualTime time;
    test::OnPanel panel{GetParam()};
    testing::StrictMock<doubles::MockCommandListener> listener;
    Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    std::unique_ptr<SearchList> list = std::make_unique<SearchList>();
};

TEST_P(SearchListBoxPrivateTest, KeysRaiseTheThreeCommands)
{
    expectRaised(SearchList::SELECT_COMMAND());
    press("v!");
    EXPECT_EQ(rows(), "a[b]c");
    expectRaised(SearchList::RIGHT_COMMAND());
    press(">");
    expectRaised(SearchList::BACK_COMMAND());
    press("<");
}

TEST_P(SearchListBoxPrivateTest, KeyThatTypesOpensThePopupWithItsCharacter)
{
    EXPECT_FALSE(list->isSearchPopupVisible());
    press("2");
    EXPECT_TRUE(list->isSearchPopupVisible());
    EXPECT_EQ(list->getSearchText(), "A");
    press("3");
    EXPECT_EQ(list->getSearchText(), "Ad");
}

TEST_P(SearchListBoxPrivateTest, KeyThatTypesNothingOpensNothing)
{
    press("#*");
    EXPECT_FALSE(list->isSearchPopupVisible());
}

TEST_P(SearchListBoxPrivateTest, StarOffersSymbolsWhichHaveAllKeysThen)
{
    press("666*");
    press("^v>!");
    EXPECT_EQ(list->getSearchText(), "O,");
    EXPECT_EQ(rows(), "[a]bc");
}

TEST_P(SearchListBoxPrivateTest, WhileItIsShownRowsMoveAndAreChosen)
{
    press("2");
    expectRaised(SearchList::SELECT_COMMAND());
    press("vv^!");
    EXPECT_EQ(rows(), "a[b]c");
    EXPECT_EQ(list->getSearchText(), "A");
    EXPECT_TRUE(list->isSearchPopupVisible());
}

TEST_P(SearchListBoxPrivateTest, LeftAndRightMoveInTheTextAndAtItsEndsAreTheLists)
{
    press("23");
    press("<<>");
    time.pass(1000);
    press("4");
    EXPECT_EQ(list->getSearchText(), "Agd");
    press(">");
    expectRaised(SearchList::RIGHT_COMMAND());
    press(">");
    press("<<<");
    EXPECT_TRUE(list->isSearchPopupVisible());
    press("<");
    EXPECT_FALSE(list->isSearchPopupVisible());
    EXPECT_EQ(list->getSearchText(), "Agd");
    expectRaised(SearchList::BACK_COMMAND());
    press("<");
}

TEST_P(SearchListBoxPrivateTest, FirstLeftBehindATextReadFromTheRightStays)
{
    list->setSearchText("زوي");
    list->showSearchPopup();
    press("0<");
    EXPECT_TRUE(list->isSearchPopupVisible());
    press("<");
    EXPECT_FALSE(list->isSearchPopupVisible());
}

TEST_P(SearchListBoxPrivateTest, SymbolsAreNoMoreOfferedWhenThePopupComesUpAgain)
{
    press("2*");
    list->dismissSearchPopup();
    press("3");
    EXPECT_EQ(list->getSearchText(), "D");
}

TEST_P(SearchListBoxPrivateTest, NextKeyBeginsAnew)
{
    list->setSearchText("Zoë");
    press("2");
    EXPECT_EQ(list->getSearchText(), "A");
}

TEST_P(SearchListBoxPrivateTest, ShownByTheApplicationItHasTheTextThatThereIs)
{
    list->setSearchText("Zo");
    EXPECT_EQ(list->getSearchText(), "Zo");
    EXPECT_FALSE(list->isSearchPopupVisible());
    list->showSearchPopup();
    list->showSearchPopup();
    EXPECT_TRUE(list->isSearchPopupVisible());
    press("3");
    EXPECT_EQ(list->getSearchText(), "Zod");
    list->setSearchText("Bo");
    press("2");
    EXPECT_EQ(list->getSearchText(), "Boa");
    list->dismissSearchPopup();
    list->dismissSearchPopup();
    EXPECT_FALSE(list->isSearchPopupVisible());
    EXPECT_EQ(list->getSearchText(), "Boa");
}

TEST_P(SearchListBoxPrivateTest, EachChangeOfTheTextTellsTheListenersAndNothingElseDoes)
{
    test::ItemChanges changes;
    list->addItemStateListener(&changes);
    list->setSearchText("Bo");
    list->showSearchPopup();
    press("<>v");
    EXPECT_THAT(changes.take(), IsEmpty());
    press("2");
    EXPECT_THAT(changes.take(), ElementsAre(nullptr));
    press("2");
    EXPECT_THAT(changes.take(), ElementsAre(nullptr));
    EXPECT_EQ(list->getSearchText(), "Bob");
}

TEST_P(SearchListBoxPrivateTest, RowsStayInSightBesideThePopup)
{
    list->setTitle("Contacts");
    list->showSearchPopup();
    for (int row = 0; row < 3; ++row) {
        list->setSelectedIndex(row);
        const PegRect area = box().rowArea(row);
        EXPECT_GE(area.bottom, area.top);
        EXPECT_LE(area.bottom, box().Area().bottom);
        const PegRect strip = box().First()->Area();
        EXPECT_TRUE(area.bottom < strip.top || area.top > strip.bottom) << row;
    }
}

TEST_P(SearchListBoxPrivateTest, NumbersAreToldWhereTheyAreShown)
{
    list->setTitle("Contacts");
    EXPECT_THAT(shown(), Not(HasSubstr("/")));
    list->setCountIndicator(10000);
    EXPECT_THAT(shown(), HasSubstr("string0:10000\n"));
    list->setSearchCountIndicator(12);
    EXPECT_THAT(shown(), HasSubstr("caption:Contacts\n"));
    EXPECT_THAT(shown(), HasSubstr("string0:12/10000\n"));
    list->setCountIndicator(-1);
    EXPECT_THAT(shown(), HasSubstr("string0:12\n"));
    list->setSearchCountIndicator(-1);
    EXPECT_THAT(shown(), Not(HasSubstr("string0:12")));
}

TEST_P(SearchListBoxPrivateTest, NumbersOfAListWithoutATitleHaveABarAsLongAsThereAreAny)
{
    const PegRect before = box().titleArea();
    list->setCountIndicator(3);
    EXPECT_GT(box().titleArea().bottom, box().titleArea().top);
    EXPECT_THAT(shown(), HasSubstr("string0:3\n"));
    EXPECT_THAT(shown(), Not(HasSubstr("caption:")));
    EXPECT_EQ(rows(), "[a]bc");
    list->setCountIndicator(-1);
    EXPECT_EQ(box().titleArea(), before);
}

TEST_P(SearchListBoxPrivateTest, PopupIsASubItemAndTakesTheNumbersWhereItHasTheTitlesPlace)
{
    list->setTitle("Contacts");
    list->setSearchText("Zo");
    list->setCountIndicator(3);
    list->setSearchCountIndicator(0);
    list->showSearchPopup();
    if (isSmall()) {
        EXPECT_THAT(shown(), HasSubstr(popup("string0:Zo\nstring1:0/3\n")));
        EXPECT_THAT(shown(), Not(HasSubstr("caption:")));
    } else {
        EXPECT_THAT(shown(), HasSubstr(popup("string0:Zo\n")));
        EXPECT_THAT(shown(), HasSubstr("string0:0/3\n"));
    }
    list->dismissSearchPopup();
    EXPECT_THAT(shown(), Not(HasSubstr("SearchPopup")));
    EXPECT_THAT(shown(), HasSubstr("caption:Contacts\n"));
}

TEST_P(SearchListBoxPrivateTest, WhatIsCoveredIsNotTold)
{
    list->setSearchText("Zo");
    list->showSearchPopup();
    const PegRect row = box().rowArea(0);
    const DisplayAPIUtils::Rect visible(row.left, row.top, 4, 4);
    const std::string text = list->getPrivateImpl()->serialise({visible});
    EXPECT_THAT(text, HasSubstr("string0:a\n"));
    EXPECT_THAT(text, Not(HasSubstr("SearchPopup")));
    EXPECT_EQ(list->getPrivateImpl()->serialise(std::vector<DisplayAPIUtils::Rect>{}), "");
}

TEST_P(SearchListBoxPrivateTest, ObserverHearsOfWhatLooksDifferent)
{
    test::Told told(display);
    told.take();
    list->showSearchPopup();
    EXPECT_EQ(told.take(), 1);
    list->setSearchText("Bo");
    EXPECT_EQ(told.take(), 1);
    press("2");
    EXPECT_EQ(told.take(), 1);
    list->setCountIndicator(5);
    list->setCountIndicator(5);
    EXPECT_EQ(told.take(), 1);
    list->dismissSearchPopup();
    EXPECT_EQ(told.take(), 1);
    list->setSearchText("Zo");
    EXPECT_EQ(told.take(), 0);
    press("2");
    EXPECT_EQ(told.take(), 1);
}

TEST_P(SearchListBoxPrivateTest, ObserverMayEndTheListAtEachKey)
{
    test::Told told(display, [&] { list.reset(); });
    press("2");
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(display.getCurrent(), nullptr);
}

TEST_P(SearchListBoxPrivateTest, ObserverMayClosePopupWhileItIsTypedIn)
{
    list->showSearchPopup();
    test::Told told(display, [&] { list->dismissSearchPopup(); });
    press("2");
    EXPECT_FALSE(list->isSearchPopupVisible());
    EXPECT_EQ(list->getSearchText(), "A");
}

TEST_P(SearchListBoxPrivateTest, ClearingUnderThePopupLeavesIt)
{
    press("2");
    list->clear();
    EXPECT_EQ(list->size(), 0);
    EXPECT_TRUE(list->isSearchPopupVisible());
    press("v!>3");
    EXPECT_EQ(list->getSearchText(), "Ad");
    list->append("d");
    EXPECT_EQ(rows(), "[d]");
}

TEST_P(SearchListBoxPrivateTest, AfterAnotherPopupTheTextIsAsItWas)
{
    press("23");
    press("<");
    PopupNotification other;
    display.setCurrent(&other);
    press("4");
    display.setCurrent(list.get());
    EXPECT_TRUE(list->isSearchPopupVisible());
    press("4");
    EXPECT_EQ(list->getSearchText(), "Agd");
}

TEST_P(SearchListBoxPrivateTest, HeldLeftTakesCharactersAwayAsLongAsTheListHasTheUser)
{
    press("234");
    gpPresent->Focus()->Message({.wType = PM_KEY, .iData = PK_LEFT});
    time.pass(700);
    EXPECT_EQ(list->getSearchText(), "Ad");
    PopupNotification other;
    display.setCurrent(&other);
    time.pass(2000);
    EXPECT_EQ(list->getSearchText(), "Ad");
    display.setCurrent(list.get());
    gpPresent->Focus()->Message({.wType = PM_KEY, .iData = PK_LEFT});
    time.pass(2000);
    EXPECT_EQ(list->getSearchText(), "");
    EXPECT_TRUE(list->isSearchPopupVisible());
    gpPresent->Focus()->Message({.wType = PM_KEYRELEASE, .iData = PK_LEFT});
    press("2");
    time.pass(2000);
    EXPECT_EQ(list->getSearchText(), "A");
}

TEST_P(SearchListBoxPrivateTest, LanguageChangesTitleAndRowsAndLeavesTheText)
{
    Translator translator;
    TranslationInfo title{"Contacts", &translator};
    TranslationInfo none{"None", &translator};
    list->setTitle(&title);
    list->clear();
    list->append(&none);
    press("2");
    translator.language = " (ar)";
    display.localeChanged("ar");
    EXPECT_EQ(list->getSearchText(), "A");
    EXPECT_THAT(shown(), HasSubstr("string0:None (ar)"));
    list->dismissSearchPopup();
    EXPECT_THAT(shown(), HasSubstr("caption:Contacts (ar)"));
    list->clear();
    list->setTitle("");
}

TEST_P(SearchListBoxPrivateTest, LocaleFromTheApplicationReachesTheTitleToo)
{
    Translator translator;
    TranslationInfo title{"Contacts", &translator};
    list->setTitle(&title);
    test::Told told(display);
    translator.language = " (ar)";
    list->localeChanged("ar");
    EXPECT_THAT(shown(), HasSubstr("caption:Contacts (ar)"));
    EXPECT_EQ(told.take(), 1);
    list->setTitle("");
}

TEST_P(SearchListBoxPrivateTest, ObserverIsToldOnceOfALocale)
{
    Translator translator;
    TranslationInfo none{"None", &translator};
    list->append(&none);
    list->append(&none);
    test::Told told(display);
    list->localeChanged("de_DE");
    EXPECT_EQ(told.take(), 1) << "from the application";
    display.localeChanged("de_DE");
    EXPECT_EQ(told.take(), 1) << "from the display";
    list->clear();
}

TEST_P(SearchListBoxPrivateTest, OpenedBeforeItIsShownItIsThereWithTheList)
{
    SearchList other;
    other.append("x");
    other.setSearchText("x");
    other.showSearchPopup();
    EXPECT_TRUE(other.isSearchPopupVisible());
    display.setCurrent(&other);
    EXPECT_THAT(other.getPrivateImpl()->serialise(), HasSubstr(popup("string0:x\n")));
    display.setCurrent(list.get());
}

TEST_P(SearchListBoxPrivateTest, ListOfAnotherDisplayKeepsItsPopupToItself)
{
    Display second(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    SearchList other;
    second.setCurrent(&other);
    other.showSearchPopup();
    EXPECT_FALSE(list->isSearchPopupVisible());
    second.setCurrent(list.get());
    list->showSearchPopup();
    EXPECT_TRUE(other.isSearchPopupVisible());
    EXPECT_TRUE(list->isSearchPopupVisible());
}

TEST_P(SearchListBoxPrivateTest, DeletedWhileThePopupIsShown)
{
    press("2");
    list.reset();
    EXPECT_EQ(display.getCurrent(), nullptr);
}

INSTANTIATE_ON_PANELS(SearchListBoxPrivateTest);

using SearchListEndTest = testing::TestWithParam<host::Variant>;

TEST_P(SearchListEndTest, DisplayThatEndsFirstLeavesListAndPopup)
{
    const test::OnPanel panel{GetParam()};
    SearchList list;
    {
        Display display(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
        list.append("a");
        list.setSearchText("Zo");
        display.setCurrent(&list);
        list.showSearchPopup();
    }
    EXPECT_EQ(list.getSearchText(), "Zo");
    EXPECT_TRUE(list.isSearchPopupVisible());
    EXPECT_EQ(list.size(), 1);
}

TEST_P(SearchListEndTest, BoxThatDiesTakesThePopupAndLeavesTheText)
{
    const test::OnPanel panel{GetParam()};
    const Display display(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    for (const bool isShown : {false, true}) {
        SearchList list;
        list.append("a");
        list.setSearchText("Zo");
        if (isShown)
            list.showSearchPopup();
        delete list.getPrivateImpl()->getWidget();
        EXPECT_EQ(list.getSearchText(), "Zo");
        list.setSearchText("Bo");
        list.showSearchPopup();
        list.dismissSearchPopup();
        list.setCountIndicator(3);
        EXPECT_EQ(list.getSearchText(), "Bo");
        EXPECT_FALSE(list.isSearchPopupVisible());
        EXPECT_EQ(list.size(), 0);
        EXPECT_EQ(list.getPrivateImpl()->serialise(), "");
    }
}

INSTANTIATE_ON_PANELS(SearchListEndTest);

} // namespace
