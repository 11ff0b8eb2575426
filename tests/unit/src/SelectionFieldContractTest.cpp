// What a selection field promises of each of its operations.

#include "DisplayAPI/SelectionField.h"

#include "DisplayAPI/MenuCommand.h"
#include "doubles/Answers.h"
#include "support/FacadeContract.h"
#include "support/HardwareVariant.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 2;

struct Selections : test::WidgetSubject<SelectionField> {
    explicit Selections(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().command = &home;
        facade = std::make_unique<SelectionField>("Kind", &home, nullptr, true);
        if (!hasSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call)
    {
        return test::sideName("SelectionFieldPrivate") + "::" + call;
    }

    static Filling command(Selections& s) { return {.ptr1 = &s.home}; }

    test::HardwareVariant production{test::sideName("") == "WP1" ? 1 : 2};
    MenuCommand home{"Home", 1};
};

const bool SELECTION_FIELD_CHECKED =
    test::Contract<Selections>("SelectionFieldContractTest")
        .waits("setFieldContents", 3, [](Selections& s) { s->setFieldContents(&s.home); })
        .record(Selections::command)
        .arrives([](Selections& s) { return callText("setFieldContents", &s.home); })
        .waits("setSelectionIndex", 4, [](Selections& s) { s->setSelectionIndex(7); })
        .record({.int1 = 7})
        .arrives("setSelectionIndex(7)")
        .waits("getSelectionIndex", 5, 3, -1, [](Selections& s) { return s->getSelectionIndex(); })
        .arrives("getSelectionIndex()")
        .waits("setSelectionCommand", 6, [](Selections& s) { s->setSelectionCommand(&s.home); })
        .record(Selections::command)
        .arrives([](Selections& s) { return callText("setSelectionCommand", &s.home); })
        .waits(
            "getSelectionCommand", 7, [](Selections& s) { return &s.home; }, nullptr,
            [](Selections& s) { return s->getSelectionCommand(); })
        .arrives("getSelectionCommand()")
        .waits("appendSelection", 8, [](Selections& s) { s->appendSelection(&s.home); })
        .record(Selections::command)
        .arrives([](Selections& s) { return callText("appendSelection", &s.home); })
        .waits("clearSelections", 9, [](Selections& s) { s->clearSelections(&s.home); })
        .record(Selections::command)
        .arrives([](Selections& s) { return callText("clearSelections", &s.home); })
        .waits("setInformAppOnOk", 10, [](Selections& s) { s->setInformAppOnOk(true); })
        .record({.bool1 = true})
        .arrives("setInformAppOnOk(true)")
        .waits("setReadOnlyMode", 11, [](Selections& s) { s->setReadOnlyMode(true); })
        .record({.bool1 = true})
        .arrives("setReadOnlyMode(true)")
        .waits("getReadOnlyMode", 12, true, false, [](Selections& s) { return s->getReadOnlyMode(); })
        .arrives("getReadOnlyMode()")
        .waits("getHighlightedIndex", 13, 4, -1, [](Selections& s) { return s->getHighlightedIndex(); })
        .arrives("getHighlightedIndex()")
        .waits("displayCurrentSelection", 14, [](Selections& s) { s->displayCurrentSelection(true); })
        .record({.bool1 = true})
        .arrives("displayCurrentSelection(true)")
        .waits("setLabel", 15, [](Selections& s) { s->setLabel("Type"); })
        .record({.text1 = "Type"})
        .arrives("setLabel(\"Type\")")
        .completes({-1, 16, 99})
        .check();

} // namespace
