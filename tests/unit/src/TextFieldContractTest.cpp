// What a text field promises of each of its operations.

#include "DisplayAPI/TextField.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Form.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 1;

struct TextFields : test::WidgetSubject<TextField> {
    explicit TextFields(bool hasSide)
    {
        facade = std::make_unique<TextField>("Name", TextField::ICON_NONE, "", TextField::TEXT);
        if (!hasSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call) { return test::sideName("TextFieldPrivate") + "::" + call; }

    TranslationInfo text{"Ada", nullptr};
    Command save{"Save", Command::ITEM};
};

const bool TEXT_FIELD_CHECKED =
    test::Contract<TextFields>("TextFieldContractTest")
        .waits("size", 2, 7, -1, [](TextFields& t) { return t->size(); })
        .arrives("size()")
        .waits("getString", 3, "string", "", [](TextFields& t) { return t->getString(); })
        .arrives("getString()")
        .waits("setString", 4, [](TextFields& t) { t->setString("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setString(\"Ada\")")
        .waits("setTranslatedString", 4, [](TextFields& t) { t->setString(&t.text); })
        .record([](TextFields& t) { return Filling{.ptr1 = &t.text}; })
        .arrives([](TextFields& t) { return callText("setString", &t.text); })
        .waits("setLabel", 5, [](TextFields& t) { t->setLabel("Name"); })
        .record({.text1 = "Name"})
        .arrives("setLabel(\"Name\")")
        .waits("setTranslatedLabel", 5, [](TextFields& t) { t->setLabel(&t.text); })
        .record([](TextFields& t) { return Filling{.ptr1 = &t.text}; })
        .arrives([](TextFields& t) { return callText("setLabel", &t.text); })
        .waits("getLabel", 6, "label", "", [](TextFields& t) { return t->getLabel(); })
        .arrives("getLabel()")
        .waits("setIcon", 7, [](TextFields& t) { t->setIcon(TextField::ICON_HOME); })
        .record({.int1 = 2})
        .arrives("setIcon(2)")
        .waits("setUnknownIcon", 7, [](TextFields& t) { t->setIcon(TextField::IconImage(-70000)); })
        .record({.int1 = -70000})
        .arrives("setIcon(-70000)")
        .waits("setFieldType", 8, [](TextFields& t) { t->setFieldType(TextField::PASSWORD); })
        .record({.int1 = 3})
        .arrives("setFieldType(3)")
        .waits("setUnknownType", 8, [](TextFields& t) { t->setFieldType(TextField::FieldType(70000)); })
        .record({.int1 = 70000})
        .arrives("setFieldType(70000)")
        .waits("setMaxFieldLength", 9, [](TextFields& t) { t->setMaxFieldLength(20); })
        .record({.int1 = 20})
        .arrives("setMaxFieldLength(20)")
        .waits("setInformAppOnOk", 10, [](TextFields& t) { t->setInformAppOnOk(&t.save); })
        .record([](TextFields& t) { return Filling{.ptr1 = &t.save}; })
        .arrives([](TextFields& t) { return callText("setInformAppOnOk", &t.save); })
        .waits("informAppOnOk", 10, [](TextFields& t) { t->setInformAppOnOk(true); })
        .record([](TextFields&) { return Filling{.ptr1 = Form::OK_COMMAND()}; })
        .arrives([](TextFields&) { return callText("setInformAppOnOk", Form::OK_COMMAND()); })
        .waits("doNotInformAppOnOk", 10, [](TextFields& t) { t->setInformAppOnOk(false); })
        .arrives([](TextFields&) { return callText("setInformAppOnOk", static_cast<Command*>(nullptr)); })
        .waits("setReadOnlyMode", 11, [](TextFields& t) { t->setReadOnlyMode(true); })
        .record({.bool1 = true})
        .arrives("setReadOnlyMode(true)")
        .waits("getReadOnlyMode", 12, true, false, [](TextFields& t) { return t->getReadOnlyMode(); })
        .arrives("getReadOnlyMode()")
        .completes({-1, 13, 14, 99})
        .check();

} // namespace
