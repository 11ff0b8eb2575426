#include "KVXListPrivate.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxText.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <cstdio>
#include <limits>
#include <utility>

namespace DisplayAPI {

namespace {

/// What a display line without a text is filled with.
const std::string BLANK_TITLE(24, ' ');

constexpr unsigned int LAST_NUMBER = std::numeric_limits<int>::max() - 1;

} // namespace

KVXListPrivate::KVXListPrivate(Displayable* owner) : mOwner(owner)
{
    mWidget->setMessageTarget(this);
    mWidget->Style(mWidget->Style() | FF_NONE);
    if (KestrelApplication* const application = KestrelApplication::getCurrentApplication())
        application->addObserver(this);
}

KVXListPrivate::~KVXListPrivate()
{
    KestrelApplication::removeObserver(this);
    if (mWidget != nullptr)
        mWidget->setMessageTarget(nullptr);
    for (const auto& [line, text] : mTitleTexts)
        delete text;
}

int KVXListPrivate::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: currentChanged(message.iData); break;
    case PM_CLICKED: clicked(message.iData); break;
    case PM_LEFT: leftEvent(); break;
    case PM_RIGHT: rightEvent(message.iData); break;
    case PM_APPLICATION_CHANGED:
        localeChanged(ICC::fromUNICODEtoASCII(*static_cast<const PegString*>(message.pData)));
        break;
    default: break;
    }
    return 0;
}

void KVXListPrivate::currentChanged(int)
{
    mSelectionChanged = true;
    generateDisplayChangedEvent();
}

void KVXListPrivate::clicked(int)
{
    postCommand(List::SELECT_COMMAND(), mOwner);
}

void KVXListPrivate::leftEvent()
{
    postCommand(List::BACK_COMMAND(), mOwner);
    generateDisplayChangedEvent();
}

void KVXListPrivate::rightEvent(int)
{
    postCommand(List::RIGHT_COMMAND(), mOwner);
}

/// The facade hides the operation that hands the locale on to its rows: as a list it has it.
void KVXListPrivate::localeChanged(const std::string& locale)
{
    if (mTitle != nullptr && mWidget != nullptr)
        mWidget->setTitle(ICC::fromUTF8toUNICODE(mTitle->getCompleteString()));
    if (auto* const list = dynamic_cast<List*>(mOwner))
        list->localeChanged(locale);
}

PegThing* KVXListPrivate::getWidget()
{
    return mWidget.get();
}

void KVXListPrivate::releaseOwnership()
{
    mOwnership.releaseOwnership();
}

void KVXListPrivate::gainOwnership()
{
    mOwnership.gainOwnership();
}

/// What lay above has taken the display lines off.
void KVXListPrivate::show()
{
    if (mTitleLines > 0)
        setSysWindowSize(mTitleLines);
    generateDisplayChangedEvent();
}

void KVXListPrivate::lostFocus() {}

std::string KVXListPrivate::serialise()
{
    return serialise({mWidget != nullptr ? toRect(mWidget->Area()) : DisplayAPIUtils::Rect(0, 0, 0, 0)});
}

std::string KVXListPrivate::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    const bool hasContents = size() > 0 || showsSystemWindowText();
    return screen::object("KestrelListBox", hasContents ? listContents(*mWidget, visible) : std::string());
}

bool KVXListPrivate::showsSystemWindowText() const
{
    for (int line = 0; mWidget != nullptr && line < mWidget->systemWindowLines(); ++line)
        if (!mWidget->systemWindowText(line).empty())
            return true;
    return false;
}

void KVXListPrivate::numtitlelines(unsigned int) {}

void KVXListPrivate::titlecolour(int) {}

void KVXListPrivate::notifyOne() {}

/// A text without a translator is its own translation.
void KVXListPrivate::titletext(unsigned int line, const std::string& text)
{
    titletext(line, new TranslationInfo(text, nullptr));
}

void KVXListPrivate::titletext(unsigned int line, TranslationInfo* text)
{
    keepTitleText(line, text);
    if (text != nullptr)
        showTitleText(line, text->getCompleteString());
    generateDisplayChangedEvent();
}

void KVXListPrivate::keepTitleText(unsigned int line, TranslationInfo* text)
{
    TranslationInfo*& entry = mTitleTexts[line];
    if (entry != text)
        delete entry;
    entry = text;
    if (text == nullptr)
        mTitleTexts.erase(line);
}

/// The line that is set becomes the last one.
void KVXListPrivate::showTitleText(unsigned int line, const std::string& text)
{
    const int number = static_cast<int>(std::min(line, LAST_NUMBER));
    if (mWidget == nullptr)
        return;
    if (text.empty() || text == BLANK_TITLE)
        return mWidget->removeSystemWindowLine(number);
    mWidget->setSystemWindowText(ICC::fromUTF8toUNICODE(text), number);
    mTitleLines = number + 1;
    mWidget->setSystemWindowLines(mTitleLines);
}

void KVXListPrivate::cleartitle()
{
    std::puts("void KVXListPrivate::cleartitle() NOT implemented on WP_LO Please remove this printf??");
}

bool KVXListPrivate::selectionchanged() const
{
    return std::exchange(mSelectionChanged, false);
}

} // namespace DisplayAPI
