#pragma once

#include "host/lcd/TextOrder.h"
#include "host/widgets/edit/EditKind.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// What is edited: a text, a cursor in it, the character that is being chosen, and what may be typed. It knows neither
/// time nor panel. GUI thread only.
class EditText {
public:
    /// What a key of the keypad has done.
    enum class Typed { NOTHING, REFUSED, CHARACTER, CANDIDATE };

    /// The cursor goes behind the text. What the kind refuses and what is beyond the maximum is left out.
    void set(std::u16string_view text);
    const std::u16string& text() const { return mText; }

    /// What is shown: dots in place of what is hidden, but for the character that is being chosen.
    std::u16string shown() const;

    /// The same without that exception.
    std::u16string masked() const;

    const Caret& caret() const { return mCaret; }
    void setCaret(const Caret& caret);

    /// How many units stand before it.
    std::size_t cursor() const { return mCaret.at; }

    void setMaximum(std::size_t characters);
    void setKind(EditKind kind);
    EditKind kind() const { return mKind; }
    void setHidden(bool hidden) { mHidden = hidden; }

    /// None is ignored. Which ones there are depends on the language as well: modesInLanguage().
    void setModes(std::vector<InputMode> modes);
    InputMode mode() const;
    bool hasModes() const { return mModes.size() > 1; }
    void nextMode();

    /// What star offers. Without a kind it types itself where digits are typed.
    std::u16string_view symbols() const;

    /// Whether the key would put a character into an empty text. One that offers symbols does not.
    bool types(int key) const;

    Typed type(int key);

    /// Puts characters before the cursor; false where one of them had to be left out.
    bool put(std::u16string_view characters);

    bool isChoosing() const { return mCandidateKey != 0; }
    void endCandidate() { mCandidateKey = 0; }

    /// The character before the cursor becomes another one where that fits.
    bool replaceLast(char16_t character);

    /// Takes the character before the cursor away, with its marks; false where there is none. A separator without which
    /// the text would be none of its kind stays, and the character before it goes.
    bool deleteBack();

    void clear();

private:
    bool changeCandidate(int key);
    bool putOne(char16_t character);
    bool beginsWord(std::size_t at) const;

    std::u16string mText;
    Caret mCaret;
    std::size_t mMaximum = 255;
    std::vector<InputMode> mModes{InputMode::NUMBERS};
    std::optional<InputMode> mMode; ///< none until the user chooses one: the first
    EditKind mKind = EditKind::TEXT;
    bool mHasKind = false;
    bool mHidden = false;
    int mCandidateKey = 0;           ///< 0 where no character is being chosen
    std::size_t mCandidateIndex = 0; ///< among the key's characters
};

} // namespace host
