#include "variants/form/TextBoxPrivate.h"

#include "DisplayAPI/Rectangles.h"
#include "host/variants/form/TextBoxImpl.h"

#include <utility>

namespace DisplayAPI {

TextBoxSide::TextBoxSide(TextBox* owner, Panel panel, Lines lines)
    : mImpl(std::make_unique<Impl>(*this, owner, panel, lines))
{
}

TextBoxSide::~TextBoxSide() = default;

TextBoxPrivate::TextBoxPrivate(TextBox* owner) : TextBoxSide(owner, Panel::FULL, Lines::ALL) {}

TextBoxPrivateWP1::TextBoxPrivateWP1(TextBox* owner) : TextBoxSide(owner, Panel::SMALL, Lines::ONE) {}

TextBoxPrivate2LineWP1::TextBoxPrivate2LineWP1(TextBox* owner) : TextBoxSide(owner, Panel::SMALL, Lines::TWO) {}

PegThing* TextBoxSide::getWidget()
{
    return mImpl->window.get();
}

void TextBoxSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void TextBoxSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

/// Also when what lay above has gone: an observer learns of it here.
void TextBoxSide::show()
{
    generateDisplayChangedEvent();
}

/// The cursor stays where it is, for when what lies above has gone. A key that is held is somebody else's.
void TextBoxSide::lostFocus()
{
    if (mImpl->window != nullptr)
        mImpl->window->page().released(0);
}

std::string TextBoxSide::serialise()
{
    const PegThing* const widget = getWidget();
    return widget != nullptr ? mImpl->asText({toRect(widget->Area())}) : std::string();
}

std::string TextBoxSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

bool TextBoxSide::hasCaption()
{
    return mImpl->window != nullptr && mImpl->window->hasTitle() && !mImpl->title.text().empty();
}

void TextBoxSide::setSysWindowSize(int lines)
{
    if (hasSystemWindow() && mImpl->window != nullptr)
        mImpl->window->status().setLines(lines);
}

void TextBoxSide::setSysWindowText(std::string text, int line)
{
    if (hasSystemWindow() && mImpl->window != nullptr)
        mImpl->window->status().setText(line, std::move(text));
}

/// Two lines have no room for status lines as well: there the system window pops up above them.
bool TextBoxSide::hasSystemWindow()
{
    return mImpl->panel == Panel::FULL;
}

void TextBoxSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void TextBoxSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

std::string TextBoxSide::getText()
{
    return mImpl->string();
}

void TextBoxSide::setText(const std::string& text, bool cursorAtEnd)
{
    mImpl->setText(TranslatedText(text), cursorAtEnd);
}

void TextBoxSide::setText(TranslationInfo* text)
{
    mImpl->setText(TranslatedText(text), false);
}

int TextBoxSide::getSize()
{
    return mImpl->window != nullptr ? static_cast<int>(mImpl->window->page().text().length()) : -1;
}

void TextBoxSide::setMaxSize(int characters)
{
    mImpl->setMaximum(characters);
}

int TextBoxSide::getMaxSize()
{
    return mImpl->maximum;
}

void TextBoxSide::clear()
{
    mImpl->setText(TranslatedText(), true);
}

void TextBoxSide::hide()
{
    widgetDismissed(this);
}

void TextBoxSide::setTitle(const std::string& title)
{
    mImpl->setTitle(TranslatedText(title));
}

void TextBoxSide::setTitle(TranslationInfo* title)
{
    mImpl->setTitle(TranslatedText(title));
}

} // namespace DisplayAPI
