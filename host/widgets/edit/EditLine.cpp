#include "host/widgets/edit/EditLine.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::int32_t CANDIDATE = 1;
constexpr int CANDIDATE_MS = 1000;
constexpr std::int32_t LONG_ZERO = 2;
constexpr int LONG_ZERO_MS = 600;
constexpr int CURSOR_WIDTH = 2; ///< with the air beside it
constexpr int INSET = 3;        ///< of the text, from the line's edges
constexpr int MODE_WIDTH = 30;
constexpr char16_t DOT = u'\u2022';

std::u16string toUtf16(const PegString& text)
{
    return {text.data(), text.data() + text.length()};
}

PegString toPegString(const std::u16string& text)
{
    const std::vector<PegChar> characters(text.begin(), text.end());
    return PegString(characters.data(), characters.size());
}

} // namespace

void EditLine::setText(const PegString& text)
{
    endCandidate();
    endLongZero();
    mText = toUtf16(text).substr(0, mMaximum);
    mCursor = mText.size();
    Invalidate();
}

PegString EditLine::text() const
{
    return toPegString(mText);
}

void EditLine::setMaximum(int characters)
{
    mMaximum = static_cast<std::size_t>(std::max(characters, 0));
    if (mText.size() > mMaximum)
        setText(text());
}

void EditLine::setModes(std::vector<InputMode> modes)
{
    if (modes.empty())
        return;
    endCandidate();
    endLongZero();
    mModes = std::move(modes);
    mMode = 0;
    Invalidate();
}

void EditLine::setHidden(bool hidden)
{
    mHidden = hidden;
    Invalidate();
}

void EditLine::setHint(PegString hint)
{
    mHint = std::move(hint);
    Invalidate();
}

bool EditLine::types(int key) const
{
    const bool changesMode = key == PK_HASH && mModes.size() > 1;
    return !changesMode && mMaximum > 0 && !keypadLetters(key, mode(), true).empty();
}

int EditLine::heightFor(int) const
{
    return lineHeight();
}

bool EditLine::key(int key)
{
    endLongZero();
    switch (key) {
    case PK_LEFT: return mLeft == Left::DELETES ? deleteBack() : move(-1);
    case PK_RIGHT: return move(1);
    case PK_HASH:
        if (mModes.size() == 1)
            return type(key);
        nextMode();
        return true;
    default: return type(key);
    }
}

void EditLine::released(int)
{
    endLongZero();
}

/// A key of the keypad is the line's even where it types nothing: nobody else shall take it for something different.
bool EditLine::type(int key)
{
    if (mCandidateKey == key && changeCandidate(key))
        return true;
    endCandidate();
    const PegString letters = keypadLetters(key, mode(), beginsWord());
    if (letters.empty())
        return key == PK_STAR;
    if (mText.size() >= mMaximum)
        return true;
    insert(letters.data()[0]);
    if (letters.length() > 1)
        beginCandidate(key);
    else if (key == PK_0)
        beginLongZero();
    changed();
    return true;
}

/// The next character of the same key takes the place of the last one.
bool EditLine::changeCandidate(int key)
{
    --mCursor;
    const PegString letters = keypadLetters(key, mode(), beginsWord());
    ++mCursor;
    if (letters.empty())
        return false;
    mCandidateIndex = (mCandidateIndex + 1) % letters.length();
    mText[mCursor - 1] = letters.data()[mCandidateIndex];
    SetTimer(CANDIDATE, CANDIDATE_MS, false);
    changed();
    return true;
}

void EditLine::insert(char16_t character)
{
    mText.insert(mCursor, 1, character);
    ++mCursor;
}

bool EditLine::deleteBack()
{
    endCandidate();
    if (mCursor == 0)
        return false;
    mText.erase(--mCursor, 1);
    changed();
    return true;
}

bool EditLine::move(int by)
{
    endCandidate();
    if ((by < 0 && mCursor == 0) || (by > 0 && mCursor == mText.size()))
        return false;
    mCursor += by < 0 ? std::size_t(-1) : 1;
    Invalidate();
    return true;
}

void EditLine::nextMode()
{
    endCandidate();
    mMode = (mMode + 1) % mModes.size();
    Invalidate();
}

void EditLine::beginCandidate(int key)
{
    mCandidateKey = key;
    mCandidateIndex = 0;
    SetTimer(CANDIDATE, CANDIDATE_MS, false);
}

void EditLine::endCandidate()
{
    if (mCandidateKey == 0)
        return;
    mCandidateKey = 0;
    KillTimer(CANDIDATE);
    Invalidate();
}

void EditLine::beginLongZero()
{
    if (mPlusByLongZero)
        SetTimer(LONG_ZERO, LONG_ZERO_MS, false);
}

void EditLine::endLongZero()
{
    if (mPlusByLongZero)
        KillTimer(LONG_ZERO);
}

/// The zero that is held is the character before the cursor: another key would have ended it.
void EditLine::makePlus()
{
    mText[mCursor - 1] = u'+';
    changed();
}

void EditLine::focusChanged()
{
    endCandidate();
    endLongZero();
}

bool EditLine::beginsWord() const
{
    return mCursor == 0 || mText[mCursor - 1] == u' ';
}

void EditLine::changed()
{
    Invalidate();
    tell(PM_CURRENT_CHANGED, static_cast<int>(mText.size()));
}

int EditLine::Message(const PegMessage& message)
{
    if (message.wType != PM_TIMER)
        return Field::Message(message);
    if (message.iData == LONG_ZERO)
        makePlus();
    else
        endCandidate();
    return 0;
}

EditLine::Parts EditLine::parts() const
{
    const PegRect& line = Area();
    const int modeWidth = mModes.size() > 1 ? MODE_WIDTH : 0;
    const int width = widthOf(line) - 2 * INSET - modeWidth;
    const bool fromTheRight = isReadFromTheRight();
    const int left = line.left + INSET;
    return {rectAt(left + (fromTheRight ? modeWidth : 0), line.top + 1, width, heightOf(line) - 2),
            rectAt(fromTheRight ? left : left + width, line.top + 1, modeWidth, heightOf(line) - 2)};
}

PegString EditLine::shown(std::size_t characters) const
{
    return toPegString(mHidden ? std::u16string(characters, DOT) : mText.substr(0, characters));
}

PegString EditLine::shown() const
{
    return mText.empty() ? mHint : shown(mText.size());
}

/// A text that is too long is moved until the cursor is in sight.
void EditLine::Draw(PegPainter& painter)
{
    const Parts where = parts();
    painter.fill(Area(), Level::BARE);
    painter.frame(Area(), hasFocus() ? Level::DARK : Level::MIDDLE);
    const int before = Lcd::current()->textWidth(font(), shown(mCursor));
    const int gone = std::max(0, before + CURSOR_WIDTH - widthOf(where.text));
    if (mText.empty())
        drawHint(painter, where.text);
    else
        painter.scrolledText(where.text, shown(), {.font = font()}, gone, widthOf(where.text));
    if (!isEmpty(where.mode))
        painter.text(where.mode, nameOf(mode()), {.font = font(), .align = endAlign()});
    if (hasFocus())
        drawCursor(painter, where.text, before - gone);
}

/// Clear of the cursor.
void EditLine::drawHint(PegPainter& painter, const PegRect& cell) const
{
    const int left = cell.left + (isReadFromTheRight() ? 0 : CURSOR_WIDTH);
    painter.text(rectAt(left, cell.top, widthOf(cell) - CURSOR_WIDTH, heightOf(cell)), mHint,
                 {.font = font(), .align = startAlign()});
}

/// A bar, or a line under the character that is being chosen; on the side where the text begins, which may be a number
/// in a language that is read from the right.
void EditLine::drawCursor(PegPainter& painter, const PegRect& cell, int at) const
{
    const int length = mCandidateKey == 0 ? 1 : Lcd::current()->textWidth(font(), toPegString({mText[mCursor - 1]}));
    const int begin = mCandidateKey == 0 ? at : at - length;
    const bool fromTheRight = mText.empty() ? isReadFromTheRight() : painter.beginsAtTheRight(shown(), font());
    const int left = fromTheRight ? cell.right - begin - length + 1 : cell.left + begin;
    if (mCandidateKey == 0)
        painter.fill(rectAt(left, cell.top + 2, 1, heightOf(cell) - 4), Level::DARK);
    else
        painter.fill(rectAt(left, cell.bottom - 1, length, 1), Level::DARK);
}

} // namespace host
