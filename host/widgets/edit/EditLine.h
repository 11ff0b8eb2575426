#pragma once

#include "host/widgets/edit/KeypadLetters.h"
#include "host/widgets/form/Field.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host {

/// A line of text that is typed on the keypad: the same key again within a second changes the character, another key or
/// the time sets it. Tells its target PM_CURRENT_CHANGED with the text's length when the text has changed.
class EditLine : public Field {
public:
    /// What the left key does: takes the character before the cursor away, as a dialler does, or moves the cursor.
    enum class Left { DELETES, MOVES };

    /// The cursor goes behind the text. What is beyond the maximum is cut off.
    void setText(const PegString& text);
    PegString text() const;

    /// In characters; at least 0.
    void setMaximum(int characters);

    /// The first one counts from now on; the hash key goes on to the next where there are several, and types itself
    /// where there is one. None is ignored.
    void setModes(std::vector<InputMode> modes);
    InputMode mode() const { return mModes[mMode]; }

    void setLeft(Left left) { mLeft = left; }

    /// Shows dots in place of the characters.
    void setHidden(bool hidden);

    /// Stands in the place of an empty text.
    void setHint(PegString hint);
    const PegString& hint() const { return mHint; }

    /// Whether a zero that is held becomes a plus, where digits are typed.
    void setPlusByLongZero(bool on) { mPlusByLongZero = on; }

    /// Whether the key would put a character into an empty line.
    bool types(int key) const;

    /// What is on the screen: the text or its dots, or the hint.
    PegString shown() const;

    /// How many characters stand before it.
    int cursor() const { return static_cast<int>(mCursor); }

    /// Takes the character before the cursor away; false where there is none.
    bool deleteBack();

    int heightFor(int width) const override;

    /// Digits, star and hash, and left and right as long as the cursor has somewhere to go.
    bool key(int key) override;
    void released(int key) override;

    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;

protected:
    void focusChanged() override;

private:
    struct Parts {
        PegRect text;
        PegRect mode;
    };

    Parts parts() const;
    bool type(int key);
    bool changeCandidate(int key);
    void insert(char16_t character);
    bool move(int by);
    void nextMode();
    void beginCandidate(int key);
    void endCandidate();
    void beginLongZero();
    void endLongZero();
    void makePlus();
    bool beginsWord() const;
    PegString shown(std::size_t characters) const;
    void changed();
    void drawHint(PegPainter& painter, const PegRect& cell) const;
    void drawCursor(PegPainter& painter, const PegRect& cell, int at) const;

    std::u16string mText;
    std::size_t mCursor = 0;
    std::size_t mMaximum = 255;
    std::vector<InputMode> mModes{InputMode::NUMBERS};
    std::size_t mMode = 0;
    Left mLeft = Left::MOVES;
    bool mHidden = false;
    bool mPlusByLongZero = false;
    PegString mHint;
    int mCandidateKey = 0;           ///< 0 where no character is being chosen
    std::size_t mCandidateIndex = 0; ///< among the key's characters
};

} // namespace host
