#include "host/widgets/edit/EditField.h"

#include "host/widgets/edit/Utf16.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr std::int32_t CANDIDATE = 1;
constexpr int CANDIDATE_MS = 1000;
constexpr std::int32_t LONG_ZERO = 2;
constexpr std::int32_t LONG_DELETE = 3;
constexpr int HOLD_MS = 600;
constexpr int NEXT_DELETE_MS = 150;
constexpr std::int32_t BLINK = 4;
constexpr int BLINK_MS = 120;

} // namespace

void EditField::setText(const PegString& text)
{
    endTimers();
    mEdit.set(toUtf16(text));
    Invalidate();
}

PegString EditField::text() const
{
    return toPegString(mEdit.text());
}

bool EditField::enter(const PegString& text)
{
    if (mReadOnly)
        return false;
    setText(text);
    const bool isTaken = this->text() == text;
    changed();
    return isTaken;
}

void EditField::setCursor(int characters)
{
    endTimers();
    const auto wanted = static_cast<std::size_t>(std::max(characters, 0));
    const std::size_t at =
        wanted < mEdit.text().size() ? TextOrder(mEdit.shown()).before(wanted + 1) : mEdit.text().size();
    mEdit.setCaret({at, at > 0});
    Invalidate();
}

void EditField::setMaximum(int characters)
{
    endTimers();
    mEdit.setMaximum(static_cast<std::size_t>(std::max(characters, 0)));
    Invalidate();
}

void EditField::setKind(EditKind kind)
{
    endTimers();
    mEdit.setKind(kind);
    mPlusByLongZero = kind == EditKind::PHONE_NUMBER;
    Invalidate();
}

void EditField::setModes(std::vector<InputMode> modes)
{
    endTimers();
    mEdit.setModes(std::move(modes));
    Invalidate();
}

void EditField::setReadOnly(bool on)
{
    endTimers();
    mReadOnly = on;
    Invalidate();
}

void EditField::setHidden(bool hidden)
{
    mEdit.setHidden(hidden);
    Invalidate();
}

void EditField::setHint(PegString hint)
{
    mHint = std::move(hint);
    Invalidate();
}

bool EditField::types(int key) const
{
    const bool changesMode = key == PK_HASH && mEdit.hasModes();
    return !changesMode && !mReadOnly && mEdit.types(key);
}

bool EditField::key(int key)
{
    endHold();
    if (mSymbols.isOpen())
        return keyInSymbols(key);
    switch (key) {
    case PK_LEFT:
        if (mLeft == Left::MOVES)
            return move(false);
        beginHold(LONG_DELETE, mEdit.caret());
        return deleteBack();
    case PK_RIGHT: return move(true);
    case PK_STAR: return mEdit.symbols().empty() || mReadOnly ? type(key) : typeSymbol();
    case PK_HASH:
        if (!mEdit.hasModes() || mReadOnly)
            return type(key);
        endTimers();
        mEdit.nextMode();
        Invalidate();
        return true;
    default: return type(key);
    }
}

void EditField::released(int)
{
    endHold();
}

/// A key of the keypad is the field's even where it types nothing: nobody else shall take it for something different.
bool EditField::type(int key)
{
    if (!isOfKeypad(key)) {
        endTimers();
        return false;
    }
    const EditText::Typed typed = mReadOnly ? EditText::Typed::REFUSED : mEdit.type(key);
    if (typed == EditText::Typed::CANDIDATE)
        SetTimer(CANDIDATE, CANDIDATE_MS, false);
    else
        KillTimer(CANDIDATE);
    if (typed == EditText::Typed::NOTHING || typed == EditText::Typed::REFUSED)
        return refuse();
    if (key == PK_0 && typed == EditText::Typed::CHARACTER && mPlusByLongZero)
        beginHold(LONG_ZERO, mEdit.caret());
    changed();
    return true;
}

/// A single one is typed at once.
bool EditField::typeSymbol()
{
    endTimers();
    if (mEdit.symbols().size() == 1)
        return put(mEdit.symbols().front());
    mSymbols.open(mEdit.symbols());
    Invalidate();
    return true;
}

/// The keys that it does not know are nobody else's meanwhile, but for those of the telephone.
bool EditField::keyInSymbols(int key)
{
    const char16_t taken = mSymbols.key(key);
    Invalidate();
    if (taken != 0)
        return put(taken);
    return isOfKeypad(key) || (key >= PK_UP && key <= PK_OK);
}

bool EditField::put(char16_t character)
{
    if (!mEdit.put({&character, 1}))
        return refuse();
    changed();
    return true;
}

bool EditField::refuse()
{
    mBlinks = true;
    SetTimer(BLINK, BLINK_MS, false);
    Invalidate();
    return true;
}

bool EditField::deleteBack()
{
    KillTimer(CANDIDATE);
    KillTimer(LONG_ZERO);
    mEdit.endCandidate();
    if (mReadOnly || !mEdit.deleteBack()) {
        endHold();
        return false;
    }
    mHeldFrom = mEdit.caret();
    changed();
    return true;
}

bool EditField::move(bool right)
{
    endTimers();
    const std::optional<Caret> there = caretBeside(right);
    if (!there)
        return staysAfterTyping(right);
    const Caret from = mEdit.caret();
    const bool pointsToBegin = isReadFromTheRight() == right;
    mEdit.setCaret(*there);
    if (!mReadOnly && pointsToBegin)
        beginHold(LONG_DELETE, from);
    Invalidate();
    return true;
}

bool EditField::staysAfterTyping(bool right)
{
    return !right && std::exchange(mHasTyped, false) && cursor() > 0;
}

/// The character that is being chosen is set, and no symbols are offered: that is seen, whatever else a key does.
void EditField::endTimers()
{
    if (mEdit.isChoosing() || mSymbols.isOpen())
        Invalidate();
    KillTimer(CANDIDATE);
    endHold();
    mEdit.endCandidate();
    mSymbols.close();
}

void EditField::letGo()
{
    endTimers();
    Invalidate();
}

void EditField::beginHold(int timer, const Caret& from)
{
    mHeldFrom = from;
    SetTimer(timer, HOLD_MS, false);
}

void EditField::endHold()
{
    KillTimer(LONG_ZERO);
    KillTimer(LONG_DELETE);
}

/// The zero that is held is the character before the cursor: another key would have ended it.
void EditField::makePlus()
{
    if (mEdit.replaceLast(u'+'))
        changed();
}

void EditField::deleteHeld()
{
    mEdit.setCaret(mHeldFrom);
    SetTimer(LONG_DELETE, NEXT_DELETE_MS, false);
    deleteBack();
}

void EditField::focusChanged()
{
    endTimers();
    KillTimer(BLINK);
    mBlinks = false;
}

/// Off the screen nobody says that a key has gone up. What is being chosen stays until its time is over.
void EditField::VisibilityChanged()
{
    if (!StatusIs(PSF_VISIBLE))
        endHold();
}

void EditField::changed()
{
    mHasTyped = true;
    Invalidate();
    tell(PM_CURRENT_CHANGED, static_cast<int>(mEdit.text().size()));
}

int EditField::Message(const PegMessage& message)
{
    if (message.wType != PM_TIMER)
        return Field::Message(message);
    switch (message.iData) {
    case LONG_ZERO: makePlus(); break;
    case LONG_DELETE: deleteHeld(); break;
    case CANDIDATE:
        mEdit.endCandidate();
        Invalidate();
        break;
    default:
        mBlinks = false;
        Invalidate();
        break;
    }
    return 0;
}

PegString EditField::masked() const
{
    return mEdit.text().empty() ? mHint : toPegString(mEdit.masked());
}

PegString EditField::shown() const
{
    return mEdit.text().empty() ? mHint : toPegString(mEdit.shown());
}

} // namespace host
