#include "apps/exchange/Numbers.h"

#include "apps/exchange/Sentence.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <unordered_set>
#include <utility>

namespace exchange {

namespace {

constexpr LineNumber DEFAULT_LINES = 2;
constexpr int FIRST_FREE_NUMBER = 101;
constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view SPACE = " \t\r";
    const auto first = text.find_first_not_of(SPACE);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(SPACE) - first + 1);
}

/// Takes the sentences of a file one by one.
class Reader {
public:
    explicit Reader(std::string fileName) : mFileName(std::move(fileName)) {}

    void read(std::string_view sentence, int line)
    {
        try {
            std::visit([=, this](const auto& parsed) { take(parsed, line); },
                       parseSentence(sentence, Occasion::IN_FILE));
        } catch (const Mistake& mistake) {
            mErrors[line] = mistake.what();
        }
    }

    Numbers finished()
    {
        for (LineNumber line = 1; line <= DEFAULT_LINES && !mAreLinesNamed; ++line)
            mNumbers.lines.push_back({.number = line, .party = {freeNumber(), {}}});
        for (const auto& [line, sentence] : mChanges)
            change(sentence, line);
        for (const auto& [line, error] : mErrors)
            mNumbers.errors.push_back(mFileName + ":" + std::to_string(line) + ": " + error);
        std::sort(mNumbers.lines.begin(), mNumbers.lines.end(),
                  [](const Line& one, const Line& other) { return one.number < other.number; });
        return std::move(mNumbers);
    }

private:
    void take(const Number& number, int)
    {
        claim(number.party.number);
        mNumbers.others.push_back(number);
    }

    void take(const LineSentence& sentence, int line)
    {
        const Party* const party = std::get_if<Party>(&sentence.what);
        if (party == nullptr) {
            mChanges.emplace(line, sentence);
            return;
        }
        if (find(sentence.line) != nullptr)
            throw Mistake("there is a line " + std::to_string(sentence.line) + " already");
        claim(party->number);
        mNumbers.lines.push_back({.number = sentence.line, .party = *party});
        mAreLinesNamed = true;
    }

    void take(const Deed&, int) {}

    void change(const LineSentence& sentence, int fileLine)
    {
        Line* const line = find(sentence.line);
        if (line == nullptr) {
            mErrors[fileLine] = "it is not said who line " + std::to_string(sentence.line) + " is";
            return;
        }
        if (const bool* const isRegistered = std::get_if<bool>(&sentence.what))
            line->isRegistered = *isRegistered;
        if (const int* const messages = std::get_if<int>(&sentence.what))
            line->messages = *messages;
    }

    void claim(const std::string& number)
    {
        if (!mTaken.insert(number).second)
            throw Mistake("there is a " + number + " already");
    }

    /// One that nobody in the file has.
    std::string freeNumber()
    {
        int number = FIRST_FREE_NUMBER;
        while (!mTaken.insert(std::to_string(number)).second)
            ++number;
        return std::to_string(number);
    }

    Line* find(LineNumber number)
    {
        const auto found = std::find_if(mNumbers.lines.begin(), mNumbers.lines.end(),
                                        [number](const Line& line) { return line.number == number; });
        return found != mNumbers.lines.end() ? &*found : nullptr;
    }

    std::string mFileName;
    Numbers mNumbers;
    bool mAreLinesNamed = false;
    std::map<int, LineSentence> mChanges; ///< by line of the file, until it is known who the lines are
    std::map<int, std::string> mErrors;   ///< by line of the file
    std::unordered_set<std::string> mTaken;
};

} // namespace

Numbers Numbers::parse(const std::string& fileName, std::string_view text)
{
    Reader reader(fileName);
    if (text.starts_with(BYTE_ORDER_MARK))
        text.remove_prefix(BYTE_ORDER_MARK.size());
    for (int line = 1; !text.empty(); ++line) {
        const auto end = std::min(text.find('\n'), text.size());
        if (const std::string_view content = trimmed(text.substr(0, end)); !content.empty() && content.front() != '#')
            reader.read(content, line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return reader.finished();
}

Numbers Numbers::read(const std::string& fileName)
{
    std::ifstream file(fileName);
    std::stringstream text;
    if (file.peek() != std::ifstream::traits_type::eof())
        text << file.rdbuf();
    Numbers numbers = parse(fileName, text.str());
    if (!file.is_open() || file.bad() || !(file.eof() || file.peek() == std::ifstream::traits_type::eof()))
        numbers.errors.push_back(fileName + ": the numbers cannot be read");
    return numbers;
}

} // namespace exchange
