#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/Widget.h"
#include "host/Phone.h"
#include "host/languages/Languages.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelTextEdit.h"

#include <gtest/gtest.h>

namespace {

using DisplayAPI::Display;
using DisplayAPI::List;
using DisplayAPI::Widget;

/// A telephone with its own catalogues. The test's thread is the GUI thread.
class LanguageChangeTest : public testing::TestWithParam<host::Variant> {
protected:
    LanguageChangeTest()
    {
        change("en");
        for (List* list : {&shown, &other})
            list->append(&text);
        display.show();
        display.setCurrent(&shown);
    }

    ~LanguageChangeTest() override { display.setCurrent(nullptr); }

    void change(const char* code)
    {
        EXPECT_EQ(languages.use(code), "");
        display.setTranslator(&languages);
        display.localeChanged(languages.current().locale);
    }

    static std::string rowOf(List& list) { return list.getItems().front()->getText(); }
    static std::string keyTwo() { return ICC::fromUNICODEtoUTF8(KestrelTextEdit::msKeypad2lower); }

    struct Gui {
        Gui()
        {
            host::setVariant(GetParam());
            Widget::setGuiThreadId();
        }
        ~Gui() { Widget::setGuiThreadId(0); }
    };

    Gui gui;
    host::Languages languages;
    TranslationInfo text{"Menu.settings", &languages};
    Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    List shown{0};
    List other{0};
};

TEST_P(LanguageChangeTest, ReachesTheRowsOfEveryScreen)
{
    EXPECT_EQ(rowOf(shown), "Settings");
    change("de");
    EXPECT_EQ(rowOf(shown), "Einstellungen");
    EXPECT_EQ(rowOf(other), "Einstellungen");
    change("ja");
    EXPECT_EQ(rowOf(shown), "設定");
    EXPECT_EQ(rowOf(other), "設定");
    change("en");
    EXPECT_EQ(rowOf(shown), "Settings");
    EXPECT_EQ(rowOf(other), "Settings");
}

TEST_P(LanguageChangeTest, FillsTheKeypad)
{
    change("de");
    EXPECT_EQ(keyTwo(), "abcäåáàâãæç2");
    EXPECT_EQ(KestrelTextEdit::msKeypad2lower.length(), 12u);
    change("ar");
    EXPECT_EQ(keyTwo(), "بتةث2");
    change("fr");
    EXPECT_EQ(keyTwo(), "abcàâæçäåáã2");
}

INSTANTIATE_TEST_SUITE_P(Panel, LanguageChangeTest, testing::Values(host::Variant::PLAIN, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });

} // namespace
