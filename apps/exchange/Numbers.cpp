#include "apps/exchange/Numbers.h"

#include "apps/exchange/Sentence.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <unordered_set>
#include <utility>

namespace exchange {

namespace {

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
            std::visit([this](const auto& parsed) { take(parsed); }, parseSentence(sentence, Occasion::IN_FILE));
        } catch (const Mistake& mistake) {
            mNumbers.errors.push_back(mFileName + ":" + std::to_string(line) + ": " + mistake.what());
        }
    }

    Numbers finished()
    {
        if (mNumbers.lines.empty())
            mNumbers.lines = {{.number = 1, .party = {"101", {}}}, {.number = 2, .party = {"102", {}}}};
        std::sort(mNumbers.lines.begin(), mNumbers.lines.end(),
                  [](const Line& one, const Line& other) { return one.number < other.number; });
        return std::move(mNumbers);
    }

private:
    void take(const Number& number)
    {
        claim(number.party.number);
        mNumbers.others.push_back(number);
    }

    void take(const LineSentence& sentence)
    {
        const Party* const party = std::get_if<Party>(&sentence.what);
        if (party == nullptr)
            return change(sentence);
        if (find(sentence.line) != nullptr)
            throw Mistake("there is a line " + std::to_string(sentence.line) + " already");
        claim(party->number);
        mNumbers.lines.push_back({.number = sentence.line, .party = *party});
    }

    void take(const Deed&) {}

    void change(const LineSentence& sentence)
    {
        Line* const line = find(sentence.line);
        if (line == nullptr)
            throw Mistake("it is not said before who line " + std::to_string(sentence.line) + " is");
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

    Line* find(LineNumber number)
    {
        const auto found = std::find_if(mNumbers.lines.begin(), mNumbers.lines.end(),
                                        [number](const Line& line) { return line.number == number; });
        return found != mNumbers.lines.end() ? &*found : nullptr;
    }

    std::string mFileName;
    Numbers mNumbers;
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
