#include "variants/form/TextBoxPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"

namespace DisplayAPI {

/// The recording text box. Its widget is a real one, so that a display can show it.
struct TextBoxSide::Impl {
    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, std::string(name) + "::" + call, args...);
    }

    const TextBoxSide* self;
    const char* name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

TextBoxSide::TextBoxSide(TextBox* owner, Panel panel, Lines lines)
    : mImpl(new Impl{this, panel == Panel::FULL  ? "TextBoxPrivate"
                           : lines == Lines::ONE ? "TextBoxPrivateWP1"
                                                 : "TextBoxPrivate2LineWP1"})
{
    doubles::Recorder::instance().note(this, mImpl->name, owner);
}

TextBoxSide::~TextBoxSide()
{
    doubles::Recorder::instance().note(this, std::string("~") + mImpl->name);
}

TextBoxPrivate::TextBoxPrivate(TextBox* owner) : TextBoxSide(owner, Panel::FULL, Lines::ALL) {}

TextBoxPrivateWP1::TextBoxPrivateWP1(TextBox* owner) : TextBoxSide(owner, Panel::SMALL, Lines::ONE) {}

TextBoxPrivate2LineWP1::TextBoxPrivate2LineWP1(TextBox* owner) : TextBoxSide(owner, Panel::SMALL, Lines::TWO) {}

PegThing* TextBoxSide::getWidget()
{
    return mImpl->widget;
}

void TextBoxSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void TextBoxSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void TextBoxSide::show() {}

void TextBoxSide::lostFocus() {}

std::string TextBoxSide::serialise()
{
    return DisplayablePrivate::serialise();
}

std::string TextBoxSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return DisplayablePrivate::serialise(visible);
}

bool TextBoxSide::hasCaption()
{
    return false;
}

void TextBoxSide::setSysWindowSize(int) {}

void TextBoxSide::setSysWindowText(std::string, int) {}

bool TextBoxSide::hasSystemWindow()
{
    return false;
}

void TextBoxSide::addCommandListener(CommandListener* listener)
{
    mImpl->note("addCommandListener", listener);
}

void TextBoxSide::removeCommandListener(CommandListener* listener)
{
    mImpl->note("removeCommandListener", listener);
}

std::string TextBoxSide::getText()
{
    mImpl->note("getText");
    return "text";
}

void TextBoxSide::setText(const std::string& text, bool cursorAtEnd)
{
    mImpl->note("setText", text, cursorAtEnd);
}

void TextBoxSide::setText(TranslationInfo* text)
{
    mImpl->note("setText", text);
}

int TextBoxSide::getSize()
{
    mImpl->note("getSize");
    return 4;
}

void TextBoxSide::setMaxSize(int characters)
{
    mImpl->note("setMaxSize", characters);
}

int TextBoxSide::getMaxSize()
{
    mImpl->note("getMaxSize");
    return 80;
}

void TextBoxSide::clear()
{
    mImpl->note("clear");
}

void TextBoxSide::hide()
{
    mImpl->note("hide");
}

void TextBoxSide::setTitle(const std::string& title)
{
    mImpl->note("setTitle", title);
}

void TextBoxSide::setTitle(TranslationInfo* title)
{
    mImpl->note("setTitle", title);
}

} // namespace DisplayAPI
