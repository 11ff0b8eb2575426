#include "variants/form/FormPrivate.h"

#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/Rectangles.h"
#include "host/variants/form/FormImpl.h"

namespace DisplayAPI {

FormSide::FormSide(Form* owner, Form::FormProportionType proportion, Panel panel)
    : mImpl(std::make_unique<Impl>(*this, owner, proportion, panel))
{
}

FormSide::~FormSide() = default;

FormPrivate::FormPrivate(Form* owner, Form::FormProportionType proportion) : FormSide(owner, proportion, Panel::FULL) {}

FormPrivateWP1::FormPrivateWP1(Form* owner, Form::FormProportionType proportion)
    : FormSide(owner, proportion, Panel::SMALL)
{
}

PegThing* FormSide::getWidget()
{
    return mImpl->window.get();
}

void FormSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

/// Its window leaves the screen: who has been dismissed hears nothing else.
void FormSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
    mImpl->gotUser(false);
}

/// Also when what lay above has gone: an observer learns of it here.
void FormSide::show()
{
    mImpl->gotUser(true);
    generateDisplayChangedEvent();
}

/// The current item stays the current one, and has the keys again when what lies above has gone.
void FormSide::lostFocus()
{
    mImpl->gotUser(false);
}

std::string FormSide::serialise()
{
    const PegThing* const widget = getWidget();
    return widget != nullptr ? mImpl->asText({toRect(widget->Area())}) : std::string();
}

std::string FormSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

bool FormSide::hasCaption()
{
    return !mImpl->title.text().empty();
}

void FormSide::setSysWindowSize(int lines)
{
    if (hasSystemWindow() && mImpl->window != nullptr)
        mImpl->window->status().setLines(lines);
}

void FormSide::setSysWindowText(std::string text, int line)
{
    if (hasSystemWindow() && mImpl->window != nullptr)
        mImpl->window->status().setText(line, std::move(text));
}

/// Two lines have no room for status lines beside title and field: there the system window pops up above them.
bool FormSide::hasSystemWindow()
{
    return mImpl->panel == Panel::FULL;
}

void FormSide::destroy()
{
    delete this;
}

void FormSide::own(ItemPrivateIfc* item)
{
    if (item != nullptr)
        item->releaseOwnership();
}

void FormSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void FormSide::addCommand(Command* command)
{
    if (mImpl->commands.add(command))
        mImpl->changed();
}

void FormSide::clearCommands()
{
    mImpl->commands.clear();
    mImpl->changed();
}

Item* FormSide::getSelected()
{
    return mImpl->window != nullptr ? mImpl->itemOf(mImpl->window->current()) : nullptr;
}

void FormSide::setSelected(Item* item)
{
    mImpl->select(item);
}

void FormSide::setTitle(std::string title)
{
    mImpl->setTitle(TranslatedText(std::move(title)));
}

void FormSide::setTitle(TranslationInfo* title)
{
    mImpl->setTitle(TranslatedText(title));
}

std::string FormSide::title()
{
    return mImpl->title.text();
}

void FormSide::setReadonly(bool on)
{
    mImpl->isReadOnly = on;
    if (mImpl->window != nullptr)
        mImpl->window->setReadOnly(on);
    mImpl->changed();
}

bool FormSide::isReadonly()
{
    return mImpl->isReadOnly;
}

std::string FormSide::getClipboard()
{
    return mImpl->clipboard;
}

void FormSide::setClipboard(std::string text)
{
    mImpl->setClipboard(std::move(text));
}

void FormSide::append(Item*, PegThing* widget)
{
    mImpl->append(widget);
}

void FormSide::setAlternativeCommandHandling(bool on)
{
    mImpl->okSaves = on;
}

void FormSide::setSpellerLanguage(TranslatorIfc* translator)
{
    mImpl->setSpeller(translator);
}

} // namespace DisplayAPI
