#include "host/variants/form/TextBoxImpl.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/StatusText.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr int MOST_CHARACTERS = 1000; ///< where the application does not say it

} // namespace

TextBoxSide::Impl::Impl(TextBoxSide& box, TextBox* facade, Panel panelOfBox, Lines lines)
    : self(box), owner(facade), panel(panelOfBox),
      window(std::in_place_type<host::TextBoxWindow>, lines != Lines::TWO, lines == Lines::ONE ? 1 : 0)
{
    setMaximum(MOST_CHARACTERS);
    window->setMessageTarget(this);
}

TextBoxSide::Impl::~Impl()
{
    if (window != nullptr)
        window->setMessageTarget(nullptr);
}

int TextBoxSide::Impl::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED:
        mText = TranslatedText();
        changed();
        break;
    case PM_ROW_CHANGED: changed(); break;
    case PM_CLICKED: self.postCommand(TextBox::SELECT_COMMAND(), owner); break;
    case PM_LEFT: self.postCommand(TextBox::BACK_COMMAND(), owner); break;
    case PM_RIGHT: self.postCommand(TextBox::RIGHT_COMMAND(), owner); break;
    case PM_APPLICATION_CHANGED:
        if (message.iData == KestrelApplication::LOCALE)
            languageChanged();
        break;
    default: return PegThing::Message(message);
    }
    return 0;
}

/// What the user has typed stays.
void TextBoxSide::Impl::languageChanged()
{
    if (window == nullptr)
        return;
    window->setTitle(title.shown());
    if (mText.isTranslated() && mText.text() != string())
        showText(false);
    window->Invalidate(); // it may be read from the other side than before
    changed();
}

std::string TextBoxSide::Impl::string() const
{
    return window != nullptr ? ICC::fromUNICODEtoUTF8(window->page().text()) : std::string();
}

void TextBoxSide::Impl::setText(TranslatedText newText, bool cursorAtEnd)
{
    mText = std::move(newText);
    if (window != nullptr)
        showText(cursorAtEnd);
    changed();
}

void TextBoxSide::Impl::showText(bool cursorAtEnd)
{
    window->page().setText(mText.shown());
    if (!cursorAtEnd)
        window->goToBeginning();
}

void TextBoxSide::Impl::setMaximum(int characters)
{
    maximum = std::max(characters, 0);
    if (window != nullptr)
        window->page().setMaximum(maximum);
    changed();
}

void TextBoxSide::Impl::setTitle(TranslatedText newTitle)
{
    title = std::move(newTitle);
    if (window != nullptr)
        window->setTitle(title.shown());
    changed();
}

void TextBoxSide::Impl::changed()
{
    if (window != nullptr && window->StatusIs(PSF_VISIBLE))
        self.generateDisplayChangedEvent();
}

/// Those that are in sight.
std::string TextBoxSide::Impl::linesAsText() const
{
    std::string text;
    int number = 0;
    for (const PegString& line : window->page().linesShown())
        text += screen::textLine(number++, ICC::fromUNICODEtoUTF8(line));
    return text;
}

std::string TextBoxSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    if (window == nullptr || !isVisible(window->Area(), visible))
        return {};
    std::string contents;
    if (isVisible(window->titleArea(), visible))
        contents += screen::caption(title.text());
    contents += statusAsText(window->status(), visible);
    if (isVisible(window->page().Area(), visible))
        contents += linesAsText();
    return screen::object("TextBox", contents);
}

} // namespace DisplayAPI
