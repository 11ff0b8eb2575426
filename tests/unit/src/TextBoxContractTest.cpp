// What a text box promises of each of its operations.

#include "DisplayAPI/TextBox.h"

#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int CLEANUP = 1;

struct TextBoxes : test::WidgetSubject<TextBox> {
    explicit TextBoxes(bool hasSide)
    {
        facade = std::make_unique<TextBox>(false);
        if (!hasSide)
            endSide(CLEANUP);
    }

    static std::string arrival(const std::string& call) { return test::sideName("TextBoxPrivate") + "::" + call; }

    TranslationInfo translation{"Notes", nullptr};
    std::string text = "Milk";
};

const bool TEXT_BOX_CHECKED =
    test::Contract<TextBoxes>("TextBoxContractTest")
        .waits("getText", 2, "text", "", [](TextBoxes& t) { return t->getText(); })
        .arrives("getText()")
        .waits("setText", 3, [](TextBoxes& t) { t->setText(t.text, true); })
        .record({.text1 = "Milk", .bool1 = true})
        .arrives("setText(\"Milk\", true)")
        .waits("setTextToRead", 3, [](TextBoxes& t) { t->setText(t.text, false); })
        .record({.text1 = "Milk"})
        .arrives("setText(\"Milk\", false)")
        .waits("setTranslatedText", 4, [](TextBoxes& t) { t->setText(&t.translation); })
        .record([](TextBoxes& t) { return Filling{.ptr1 = &t.translation}; })
        .arrives([](TextBoxes& t) { return callText("setText", &t.translation); })
        .waits("setNullAsText", 4, [](TextBoxes& t) { t->setText(nullptr); })
        .arrives([](TextBoxes&) { return callText("setText", static_cast<TranslationInfo*>(nullptr)); })
        .waits("getSize", 5, 4, -1, [](TextBoxes& t) { return t->getSize(); })
        .arrives("getSize()")
        .waits("setMaxSize", 6, [](TextBoxes& t) { t->setMaxSize(20); })
        .record({.int1 = 20})
        .arrives("setMaxSize(20)")
        .waits("getMaxSize", 7, 80, -1, [](TextBoxes& t) { return t->getMaxSize(); })
        .arrives("getMaxSize()")
        .waits("clear", 8, [](TextBoxes& t) { t->clear(); })
        .arrives("clear()")
        .waits("hide", 9, [](TextBoxes& t) { t->hide(); })
        .arrives("hide()")
        .waits("setTitle", 10, [](TextBoxes& t) { t->setTitle("Notes"); })
        .record({.text1 = "Notes"})
        .arrives("setTitle(\"Notes\")")
        .waits("setTranslatedTitle", 11, [](TextBoxes& t) { t->setTitle(&t.translation); })
        .record([](TextBoxes& t) { return Filling{.ptr1 = &t.translation}; })
        .arrives([](TextBoxes& t) { return callText("setTitle", &t.translation); })
        .completes({-1, 12, 13, 99})
        .check();

} // namespace
