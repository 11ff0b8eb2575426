#pragma once

#include "host/widgets/edit/EditText.h"
#include "host/widgets/edit/SymbolStrip.h"
#include "host/widgets/form/Field.h"

namespace host {

class EditRow;

/// A text that is typed on the keypad: the same key again within a second changes the character, another key or the
/// time sets it. Star offers symbols. Left and right move the cursor as the keys point, whichever way the text is read;
/// the one that points to where the text begins takes characters away while it is held, from where the cursor stood.
/// A key that is refused makes the field blink.
/// Tells its target PM_CURRENT_CHANGED with the text's length when the user has changed the text.
class EditField : public Field {
public:
    static constexpr int INSET = 3; ///< of the text, from the edges

    /// What the left key does: takes the character before the cursor away, as a dialler does, or moves the cursor.
    enum class Left { DELETES, MOVES };

    /// The cursor goes behind the text. What the kind refuses and what is beyond the maximum is left out.
    void setText(const PegString& text);
    PegString text() const;

    /// As if the user had typed it in place of the text that is there; the target is told, and may delete the field.
    /// False where the field has another text then, because its kind does not take all of it, or is only read.
    bool enter(const PegString& text);

    void clear() { setText({}); }

    /// In characters; at least 0.
    void setMaximum(int characters);

    /// What is typed: its characters, its modes, its symbols, and whether dots are shown. Without a kind everything is
    /// taken that the modes type.
    void setKind(EditKind kind);
    EditKind kind() const { return mEdit.kind(); }

    /// The first one counts from now on; the hash key goes on to the next where there are several, and types itself
    /// where there is one. None is ignored.
    void setModes(std::vector<InputMode> modes);
    InputMode mode() const { return mEdit.mode(); }

    void setLeft(Left left) { mLeft = left; }

    /// The cursor moves, and nothing is typed or taken away.
    void setReadOnly(bool on);
    bool isReadOnly() const { return mReadOnly; }

    /// Shows dots in place of the characters.
    void setHidden(bool hidden);

    /// Stands in the place of an empty text.
    void setHint(PegString hint);
    const PegString& hint() const { return mHint; }

    /// Whether a zero that is held becomes a plus, where digits are typed.
    void setPlusByLongZero(bool on) { mPlusByLongZero = on; }

    /// Whether the key would put a character into an empty field.
    bool types(int key) const;

    /// What is on the screen: the text or its dots, or the hint.
    PegString shown() const;

    /// The same, but dots for all characters that are hidden, also for the one that is being chosen: for who reads
    /// the screen as text.
    PegString masked() const;

    /// How many characters stand before it.
    int cursor() const { return static_cast<int>(mEdit.cursor()); }

    /// At most behind the last one; a character with marks stays whole.
    void setCursor(int characters);

    /// Takes the character before the cursor away; false where there is none.
    bool deleteBack();

    /// The symbols are offered: they get all keys.
    bool offersSymbols() const { return mSymbols.isOpen(); }

    /// Digits, star and hash, and left and right as long as the cursor has somewhere to go. A text that is read from
    /// the right has nothing on the left of where the user types: the first left behind what he has typed is taken all
    /// the same, so that he does not leave by it.
    bool key(int key) override;
    void released(int key) override;

    /// Something else has the user: what a key has begun ends, and so do the symbols that are offered.
    void letGo();

    int Message(const PegMessage& message) override;

protected:
    EditText& edited() { return mEdit; }
    const EditText& edited() const { return mEdit; }

    bool showsMode() const { return mEdit.hasModes() && !mReadOnly; }
    const SymbolStrip& symbols() const { return mSymbols; }

    /// What all kinds of such a field look like. The mode stands there while the user can type; the cursor is a bar, or
    /// a line under the character that is being chosen. `gone` pixels of its row lie beyond the cell's edge.
    static constexpr int MODE_WIDTH = 30;
    void fillGround(PegPainter& painter) const;
    Level ink() const { return mBlinks ? Level::BARE : Level::DARK; }
    TextLook look() const { return {.font = font(), .inverted = mBlinks}; }
    void drawHint(PegPainter& painter, const PegRect& cell) const;
    void drawMode(PegPainter& painter, const PegRect& cell) const;
    void drawCursor(PegPainter& painter, const EditRow& row, const PegRect& cell, const Caret& caret, int gone) const;

    void focusChanged() override;
    void VisibilityChanged() override;

    /// The next place of the cursor on that side; none where the text ends there.
    virtual std::optional<Caret> caretBeside(bool right) const = 0;

    /// Whether what stands beside the cursor is read from the right.
    virtual bool isReadFromTheRight() const = 0;

    /// Ends what a key has begun: the character that is being chosen is set.
    void endTimers();

private:
    bool type(int key);
    bool typeSymbol();
    bool keyInSymbols(int key);
    bool put(char16_t character);
    bool refuse();
    bool move(bool right);
    bool staysAfterTyping(bool right);
    void beginHold(int timer, const Caret& from);
    void endHold();
    void makePlus();
    void deleteHeld();
    void changed();

    EditText mEdit;
    SymbolStrip mSymbols;
    PegString mHint;
    Caret mHeldFrom; ///< where the cursor stood when the key went down
    Left mLeft = Left::MOVES;
    bool mReadOnly = false;
    bool mPlusByLongZero = false;
    bool mBlinks = false;
    bool mHasTyped = false; ///< and has not come to the left end since
};

} // namespace host
