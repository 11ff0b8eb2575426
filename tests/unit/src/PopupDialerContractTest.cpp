// What a dialer promises of each of its operations.

#include "DisplayAPI/PopupDialer.h"

#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/MenuCommand.h"
#include "Variant.h"
#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 1, INDEX = 3;

struct Changes : ItemStateListener {
    void itemStateChanged(Item*) override {}
};

struct Dialers : test::WidgetSubject<PopupDialer> {
    explicit Dialers(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().selectedIndex = INDEX;
        doubles::Answers::instance().isSelected = true;
        facade = std::make_unique<PopupDialer>(true, 3);
        if (!hasSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call)
    {
        return (isFullPanel() ? "PopupDialerPrivate::" : "PopupDialerPrivateWP1::") + call;
    }

    /// Whoever gets it deletes it.
    static TranslationInfo* text() { return new TranslationInfo("Key", nullptr); }
    static Filling translation(Dialers&) { return {.ptr1 = text()}; }

    MenuCommand dial{"Dial", 1};
    testing::NiceMock<doubles::MockCommandListener> mock;
    CommandListener* listener = &mock;
    Changes heard;
    ItemStateListener* changes = &heard;
};

Filling command(Dialers& d)
{
    return {.ptr1 = &d.dial};
}

Filling changes(Dialers& d)
{
    return {.ptr1 = d.changes};
}

const bool POPUP_DIALER_CHECKED =
    test::Contract<Dialers>("PopupDialerContractTest")
        .posts("setLine1PrefixText", 2, [](Dialers& d) { d->setLine1PrefixText("To:"); })
        .record({.text1 = "To:"})
        .arrives("setLine1PrefixText(\"To:\")")
        .posts("setLine1PrefixTranslation", 3, [](Dialers& d) { d->setLine1PrefixText(d.text()); })
        .record(Dialers::translation)
        .arrives("setLine1PrefixText(\"translated Key\")")
        .posts("setText", 4, [](Dialers& d) { d->setText("Number?"); })
        .record({.text1 = "Number?"})
        .arrives("setText(\"Number?\")")
        .posts("setTranslation", 5, [](Dialers& d) { d->setText(d.text()); })
        .record(Dialers::translation)
        .arrives("setText(\"translated Key\")")
        .posts("setLine1Text", 4, [](Dialers& d) { d->setLine1Text("Number?"); })
        .record({.text1 = "Number?"})
        .arrives("setText(\"Number?\")")
        .posts("setLine1Translation", 5, [](Dialers& d) { d->setLine1Text(d.text()); })
        .record(Dialers::translation)
        .arrives("setText(\"translated Key\")")
        .posts("setLine2Text", 6, [](Dialers& d) { d->setLine2Text("Ada"); })
        .record({.text1 = "Ada"})
        .arrives("setLine2Text(\"Ada\")")
        .posts("setLine2Translation", 7, [](Dialers& d) { d->setLine2Text(d.text()); })
        .record(Dialers::translation)
        .arrives("setLine2Text(\"translated Key\")")
        .waits("getLineEditText", 8, "110", "", [](Dialers& d) { return d->getLineEditText(); })
        .arrives("getLineEditText()")
        .posts("setLineEditText", 9, [](Dialers& d) { d->setLineEditText("030"); })
        .record({.text1 = "030"})
        .arrives("setLineEditText(\"030\")")
        .posts("setLineEditTranslation", 10, [](Dialers& d) { d->setLineEditText(d.text()); })
        .record(Dialers::translation)
        .arrives("setLineEditText(\"translated Key\")")
        .posts("show", 12, [](Dialers& d) { d->show(); })
        .arrives("show()")
        .posts("dismiss", 13, [](Dialers& d) { d->dismiss(); })
        .arrives("dismiss()")
        .waits("addCommand", 14, [](Dialers& d) { d->addCommand(&d.dial); })
        .record(command)
        .arrives([](Dialers& d) { return callText("addCommand", &d.dial); })
        .waits("removeCommand", 15, [](Dialers& d) { d->removeCommand(&d.dial); })
        .record(command)
        .arrives([](Dialers& d) { return callText("removeCommand", &d.dial); })
        .waits("setDefaultCommand", 16, [](Dialers& d) { d->setDefaultCommand(&d.dial); })
        .record(command)
        .arrives([](Dialers& d) { return callText("setDefaultCommand", &d.dial); })
        .waits("clearCommands", 17, [](Dialers& d) { d->clearCommands(); })
        .arrives("clearCommands()")
        .posts("setMode", 18, [](Dialers& d) { d->setMode(PopupDialer::HIDDEN); })
        .record({.int1 = PopupDialer::HIDDEN})
        .arrives("setMode(2)")
        .posts("setEditMode", 19, [](Dialers& d) { d->setEditMode(); })
        .arrives("setEditMode()")
        .posts("setIgnoreKeypadEvents", 20, [](Dialers& d) { d->setIgnoreKeypadEvents(true); })
        .record({.bool1 = true})
        .arrives("setIgnoreKeypadEvents(true)")
        .waits("getSelectedIndex", 21, INDEX, 0, [](Dialers& d) { return d->getSelectedIndex(); })
        .arrives("getSelectedIndex()")
        .waits("selectionHasChanged", 22, true, false, [](Dialers& d) { return d->selectionHasChanged(); })
        .arrives("selectionHasChanged()")
        .posts("addItemStateListener", 23, [](Dialers& d) { d->addItemStateListener(d.changes); })
        .record(changes)
        .arrives([](Dialers& d) { return callText("addItemStateListener", d.changes); })
        .posts("removeItemStateListener", 24, [](Dialers& d) { d->removeItemStateListener(d.changes); })
        .record(changes)
        .arrives([](Dialers& d) { return callText("removeItemStateListener", d.changes); })
        .posts("addCommandListener", 25, [](Dialers& d) { d->addCommandListener(d.listener); })
        .record([](Dialers& d) { return Filling{.ptr1 = d.listener}; })
        .arrives([](Dialers& d) { return callText("addCommandListener", d.listener); })
        .posts("setStimulusText", 26, [](Dialers& d) { d->setStimulusText("Line 2"); })
        .record({.text1 = "Line 2"})
        .arrives("setStimulusText(\"Line 2\")")
        .posts("clearStimulusText", 26, [](Dialers& d) { d->clearStimulusText(); })
        .arrives("setStimulusText(\"\")")
        .posts("setStimulusTranslation", 27, [](Dialers& d) { d->setStimulusText(d.text()); })
        .record(Dialers::translation)
        .arrives("setStimulusText(\"translated Key\")")
        .waits("showStimulusTextInHeader", 28, [](Dialers& d) { d->showStimulusTextInHeader(true); })
        .record({.bool1 = true})
        .arrives("showStimulusTextInHeader(true)")
        .completes({-1, 11, 29, 99})
        .check();

} // namespace
