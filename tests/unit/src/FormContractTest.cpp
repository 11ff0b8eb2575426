// What a form promises of each of its operations.

#include "DisplayAPI/Form.h"

#include "DisplayAPI/Command.h"
#include "doubles/Answers.h"
#include "doubles/Mocks.h"
#include "doubles/TestItem.h"
#include "support/FacadeContract.h"
#include "support/HardwareVariant.h"
#include "toolkit/PegThing.h"
#include "utilities/TranslationInfo.h"

using namespace DisplayAPI;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 1;

/// An item that is still the test's when the form has gone is deleted here.
struct OwnItem : doubles::TestItem {
    OwnItem(OwnItem*& self, PegThing* widget)
        : TestItem("item", std::make_unique<doubles::TestItemSide>(widget)), mSelf(self)
    {
    }
    ~OwnItem() override { mSelf = nullptr; }

private:
    OwnItem*& mSelf;
};

struct Forms : test::WidgetSubject<Form> {
    explicit Forms(bool hasSide)
    {
        doubles::Answers::instance().reset();
        doubles::Answers::instance().isSelected = true;
        doubles::Answers::instance().item = item;
        facade = std::make_unique<Form>(Form::SHORT_LABELS);
        if (!hasSide)
            endSide(DESTROY);
    }
    ~Forms() { delete item; }

    static std::string arrival(const std::string& call) { return test::sideName("FormPrivate") + "::" + call; }

    /// What ends the private side is none.
    static bool isArrival(const std::string& note)
    {
        return WidgetSubject::isArrival(note) && !note.ends_with("::destroy()");
    }

    Item* anItem() const { return item; }

    test::HardwareVariant production{test::sideName("") == "WP1" ? 0 : 2};
    PegThing widget;
    OwnItem* item = new OwnItem(item, &widget);
    Command command{"Save", Command::SAVE};
    TranslationInfo text{"Key", nullptr};
    testing::NiceMock<doubles::MockTranslator> mock;
    TranslatorIfc* translator = &mock;
};

/// The row has been carried out where the item is the form's: that is asked before the form goes.
std::vector<std::string> appended(Forms& f)
{
    EXPECT_EQ(f.item->getParent(), f.facade.get());
    ItemPrivateIfc* const side = f.item->getPrivateImpl();
    return {callText("append", f.anItem(), side->getWidget()), callText("own", side)};
}

const bool FORM_CHECKED =
    test::Contract<Forms>("FormContractTest")
        .waits("append", 2, [](Forms& f) { f->append(f.item); })
        .record([](Forms& f) { return Filling{.ptr1 = f.anItem()}; })
        .arrives(appended)
        .waits(
            "getSelected", 3, [](Forms& f) { return f.anItem(); }, nullptr, [](Forms& f) { return f->getSelected(); })
        .arrives("getSelected()")
        .waits("setSelected", 4, [](Forms& f) { f->setSelected(f.item); })
        .record([](Forms& f) { return Filling{.ptr1 = f.anItem()}; })
        .arrives([](Forms& f) { return callText("setSelected", f.anItem()); })
        .waits("setTitle", 5, [](Forms& f) { f->setTitle("Entry"); })
        .record({.text1 = "Entry"})
        .arrives("setTitle(\"Entry\")")
        .waits("setTranslatedTitle", 6, [](Forms& f) { f->setTitle(&f.text); })
        .record([](Forms& f) { return Filling{.ptr1 = &f.text}; })
        .arrives([](Forms& f) { return callText("setTitle", &f.text); })
        .waits("title", 7, "title", "", [](Forms& f) { return f->title(); })
        .arrives("title()")
        .waits("setReadonly", 8, [](Forms& f) { f->setReadonly(true); })
        .record({.bool1 = true})
        .arrives("setReadonly(true)")
        .waits("isReadonly", 9, true, false, [](Forms& f) { return f->isReadonly(); })
        .arrives("isReadonly()")
        .waits("setClipboard", 10, [](Forms& f) { f->setClipboard("4711"); })
        .record({.text1 = "4711"})
        .arrives("setClipboard(\"4711\")")
        .waits("getClipboard", 11, "clip", "", [](Forms& f) { return f->getClipboard(); })
        .arrives("getClipboard()")
        .waits("setSpellerLanguage", 12, [](Forms& f) { f->setSpellerLanguage(f.translator); })
        .record([](Forms& f) { return Filling{.ptr1 = f.translator}; })
        .arrives([](Forms& f) { return callText("setSpellerLanguage", f.translator); })
        .waits("addCommand", 13, [](Forms& f) { f->addCommand(&f.command); })
        .record([](Forms& f) { return Filling{.ptr1 = &f.command}; })
        .arrives([](Forms& f) { return callText("addCommand", &f.command); })
        .waits("clearCommands", 14, [](Forms& f) { f->clearCommands(); })
        .arrives("clearCommands()")
        .completes({-1, 15, 99})
        .check();

} // namespace
