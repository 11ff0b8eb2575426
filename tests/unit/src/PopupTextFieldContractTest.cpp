// What a text-field popup promises of each of its operations.

#include "DisplayAPI/PopupTextField.h"

#include "DisplayAPI/MenuCommand.h"
#include "support/HardwareVariant.h"
#include "unit/src/PopupContract.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

struct Before {
    test::HardwareVariant production{test::sideName("") == "WP1" ? 8 : 2};
};

struct TextPopups : Before, test::PopupSubject<PopupTextField> {
    explicit TextPopups(bool hasSide)
        : PopupSubject(hasSide, "PopupTextFieldPrivate", static_cast<TextField*>(nullptr), true)
    {
    }

    MenuCommand save{"Save", 1};
    TranslationInfo label{"Name", nullptr};
};

Filling saving(TextPopups& p)
{
    return {.ptr1 = &p.save};
}

const bool POPUP_TEXT_FIELD_CHECKED =
    test::Contract<TextPopups>("PopupTextFieldContractTest")
        .waits("getText", 2, "text", "", [](TextPopups& p) { return p->getText(); })
        .arrives("getText()")
        .waits("clearText", 3, [](TextPopups& p) { p->clearText(); })
        .arrives("clear()")
        .waits("addCommand", 4, [](TextPopups& p) { p->addCommand(&p.save); })
        .record(saving)
        .arrives([](TextPopups& p) { return callText("addCommand", &p.save); })
        .waits("clearCommands", 5, [](TextPopups& p) { p->clearCommands(); })
        .arrives("clearCommands()")
        .waits("setDefaultCommand", 6, [](TextPopups& p) { p->setDefaultCommand(&p.save); })
        .record(saving)
        .arrives([](TextPopups& p) { return callText("setDefaultCommand", &p.save); })
        .waits("dismiss", 7, [](TextPopups& p) { p->dismiss(); })
        .arrives("dismiss()")
        .waits("setLabel", 8, [](TextPopups& p) { p->setLabel(&p.label); })
        .record([](TextPopups& p) { return Filling{.ptr1 = &p.label}; })
        .arrives([](TextPopups& p) { return callText("setLabel", &p.label); })
        .waits("setFieldType", 9, [](TextPopups& p) { p->setFieldType(TextField::FieldType(70000)); })
        .record({.int1 = 70000})
        .arrives("setFieldType(70000)")
        .waits("setTimeout", 10, [](TextPopups& p) { p->setTimeout(5000); })
        .record({.int1 = 5000})
        .arrives("setTimeout(5000)")
        .completes({-1, 11, 12, 99})
        .check();

} // namespace
