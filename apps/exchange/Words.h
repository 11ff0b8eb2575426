#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace exchange {

/// A sentence of the exchange's language, word by word: words, commas and texts in double quotes.
/// Each take...() throws a Mistake that says what is missing and what stands there instead.
class Words {
public:
    /// Refuses what is too long, is no UTF-8, or has control characters in it.
    explicit Words(std::string_view sentence);

    bool areOver() const { return mAt == mWords.size(); }

    /// Goes on where the next words are these; whether they are.
    bool skip(std::string_view words);
    void expect(std::string_view words);

    bool isText() const;
    bool isNumber() const;

    std::string takeWord(std::string_view what);
    std::string takeText(std::string_view what);

    /// Digits, * and #, a + in front of them.
    std::string takeNumber();

    int takeCount(std::string_view what, int lowest, int highest);

    /// "3 s", "0.5 s", "200 ms", "2 min": milliseconds, at most a day.
    std::int64_t takeTime();

    /// What stands here, for a sentence about a mistake.
    std::string here() const;

private:
    struct Word {
        std::string text;
        bool isQuoted = false;
    };

    bool is(std::size_t at, std::string_view word) const;

    std::vector<Word> mWords;
    std::size_t mAt = 0;
};

/// Whether it can be dialled.
bool isNumber(std::string_view text);

} // namespace exchange
