#include "variants/form/FormPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Answers.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording form. Its widget is a real one, so that a display can show it.
struct FormSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    const FormSide* self;
    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

FormSide::FormSide(Form* owner, Form::FormProportionType proportion, Panel panel)
    : mImpl(new Impl{this, panel == Panel::FULL ? "FormPrivate" : "FormPrivateWP1"})
{
    doubles::Recorder::instance().note(this, mImpl->name, owner, static_cast<int>(proportion));
}

FormSide::~FormSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

FormPrivate::FormPrivate(Form* owner, Form::FormProportionType proportion) : FormSide(owner, proportion, Panel::FULL) {}

FormPrivateWP1::FormPrivateWP1(Form* owner, Form::FormProportionType proportion)
    : FormSide(owner, proportion, Panel::SMALL)
{
}

PegThing* FormSide::getWidget()
{
    return mImpl->widget;
}

void FormSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void FormSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void FormSide::show() {}

void FormSide::lostFocus() {}

std::string FormSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string FormSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
}

bool FormSide::hasCaption()
{
    return false;
}

void FormSide::setSysWindowSize(int) {}

void FormSide::setSysWindowText(std::string, int) {}

bool FormSide::hasSystemWindow()
{
    return false;
}

void FormSide::destroy()
{
    mImpl->note("destroy");
    delete this;
}

void FormSide::own(ItemPrivateIfc* item)
{
    mImpl->note("own", item);
}

void FormSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void FormSide::addCommand(Command* command)
{
    mImpl->note("addCommand", command);
}

void FormSide::clearCommands()
{
    mImpl->note("clearCommands");
}

Item* FormSide::getSelected()
{
    mImpl->note("getSelected");
    return doubles::Answers::instance().item;
}

void FormSide::setSelected(Item* item)
{
    mImpl->note("setSelected", item);
}

void FormSide::setTitle(std::string title)
{
    mImpl->note("setTitle", title);
}

void FormSide::setTitle(TranslationInfo* title)
{
    mImpl->note("setTitle", title);
}

std::string FormSide::title()
{
    mImpl->note("title");
    return "title";
}

void FormSide::setReadonly(bool on)
{
    mImpl->note("setReadonly", on);
}

bool FormSide::isReadonly()
{
    mImpl->note("isReadonly");
    return doubles::Answers::instance().isSelected;
}

std::string FormSide::getClipboard()
{
    mImpl->note("getClipboard");
    return "clip";
}

void FormSide::setClipboard(std::string text)
{
    mImpl->note("setClipboard", text);
}

void FormSide::append(Item* item, PegThing* widget)
{
    mImpl->note("append", item, widget);
}

void FormSide::setAlternativeCommandHandling(bool on)
{
    mImpl->note("setAlternativeCommandHandling", on);
}

void FormSide::setSpellerLanguage(TranslatorIfc* translator)
{
    mImpl->note("setSpellerLanguage", translator);
}

} // namespace DisplayAPI
