#include "host/widgets/edit/EditKind.h"

#include <algorithm>
#include <chrono>
#include <string>

namespace host {

namespace {

constexpr std::u16string_view TEXT_SYMBOLS = u".,?!'\"-_:;@/&()+*#=%€$£<>[]{}\\~^|§°¿¡«»„“”…"
                                             u"äöüßéèêëàâçñåæøœáíóúÄÖÜÉÈÀÇÑÅØ";
constexpr std::u16string_view ASCII_SYMBOLS = u".,?!'\"-_:;@/&()+*#=%$<>[]{}\\~^|`";
constexpr std::u16string_view PHONE_SYMBOLS = u"+*#,;";
constexpr std::u16string_view ALSO_IN_PHONE_NUMBERS = u" -/().";

/// Numbers with a separator between them: how long each may be, and the most that it may say.
struct Shape {
    struct Part {
        std::size_t digits;
        int most;
    };

    char16_t separator;
    std::vector<Part> parts;
};

const Shape* shapeOf(EditKind kind)
{
    static const Shape address{u'.', {{3, 255}, {3, 255}, {3, 255}, {3, 255}}};
    static const Shape date{u'-', {{4, 9999}, {2, 12}, {2, 31}}};
    static const Shape time{u':', {{2, 23}, {2, 59}}};
    switch (kind) {
    case EditKind::IP_ADDRESS: return &address;
    case EditKind::DATE: return &date;
    case EditKind::TIME: return &time;
    default: return nullptr;
    }
}

bool isDigit(char16_t character)
{
    return character >= u'0' && character <= u'9';
}

std::vector<std::u16string_view> split(std::u16string_view text, char16_t separator)
{
    std::vector<std::u16string_view> parts;
    for (std::size_t at = text.find(separator); at != text.npos; at = text.find(separator)) {
        parts.push_back(text.substr(0, at));
        text.remove_prefix(at + 1);
    }
    parts.push_back(text);
    return parts;
}

int numberIn(std::u16string_view digits)
{
    int number = 0;
    for (const char16_t digit : digits)
        number = number * 10 + (digit - u'0');
    return number;
}

bool fitsPart(std::u16string_view digits, const Shape::Part& part)
{
    return digits.size() <= part.digits && std::ranges::all_of(digits, isDigit) && numberIn(digits) <= part.most;
}

/// Months and days count from 1, and not every month has 31.
bool isDay(const std::vector<std::u16string_view>& parts)
{
    const auto isZero = [](std::u16string_view part) { return part == u"00"; };
    if (std::any_of(parts.begin() + 1, parts.end(), isZero))
        return false;
    if (parts.size() < 3 || parts[0].size() < 4 || parts[1].size() < 2 || parts[2].size() < 2)
        return true;
    using namespace std::chrono;
    return year_month_day(year(numberIn(parts[0])), month(static_cast<unsigned>(numberIn(parts[1]))),
                          day(static_cast<unsigned>(numberIn(parts[2]))))
        .ok();
}

bool hasShape(std::u16string_view text, const Shape& shape)
{
    const auto parts = split(text, shape.separator);
    return parts.size() <= shape.parts.size() && std::equal(parts.begin(), parts.end(), shape.parts.begin(), fitsPart);
}

/// A separator stands between two numbers.
bool maySeparate(std::u16string_view text, std::size_t at)
{
    return at > 0 && isDigit(text[at - 1]) && (at == text.size() || isDigit(text[at]));
}

} // namespace

std::vector<InputMode> modesOf(EditKind kind)
{
    using enum InputMode;
    switch (kind) {
    case EditKind::TEXT: return {LOWER, CAPITALISED, UPPER, NUMBERS};
    case EditKind::NAME: return {CAPITALISED, LOWER, UPPER, NUMBERS};
    case EditKind::PASSWORD: return {PLAIN_LOWER, PLAIN_UPPER, NUMBERS};
    default: return {NUMBERS};
    }
}

std::u16string_view symbolsOf(EditKind kind)
{
    switch (kind) {
    case EditKind::NUMBER: return {};
    case EditKind::PHONE_NUMBER: return PHONE_SYMBOLS;
    case EditKind::PASSWORD: return ASCII_SYMBOLS;
    case EditKind::IP_ADDRESS: return u".";
    case EditKind::DATE: return u"-";
    case EditKind::TIME: return u":";
    default: return TEXT_SYMBOLS;
    }
}

bool couldBe(EditKind kind, std::u16string_view text)
{
    const Shape* const shape = shapeOf(kind);
    if (shape == nullptr)
        return true;
    return hasShape(text, *shape) && (kind != EditKind::DATE || isDay(split(text, shape->separator)));
}

bool fits(EditKind kind, std::u16string_view text, std::size_t at, char16_t character)
{
    const Shape* const shape = shapeOf(kind);
    if (shape != nullptr) {
        std::u16string changed(text);
        changed.insert(at, 1, character);
        return (character != shape->separator || maySeparate(text, at)) && couldBe(kind, changed);
    }
    switch (kind) {
    case EditKind::NUMBER: return isDigit(character);
    case EditKind::PHONE_NUMBER:
        return isDigit(character) || PHONE_SYMBOLS.find(character) != PHONE_SYMBOLS.npos ||
               ALSO_IN_PHONE_NUMBERS.find(character) != ALSO_IN_PHONE_NUMBERS.npos;
    default: return true;
    }
}

/// A number of an address may be shorter than three digits, so that only the user knows where it ends.
char16_t separatorBefore(EditKind kind, std::u16string_view text, std::size_t at)
{
    const Shape* const shape = shapeOf(kind);
    if (shape == nullptr || kind == EditKind::IP_ADDRESS)
        return 0;
    const auto parts = split(text.substr(0, at), shape->separator);
    const bool isComplete =
        parts.size() < shape->parts.size() && parts.back().size() == shape->parts[parts.size() - 1].digits;
    return isComplete ? shape->separator : u'\0';
}

} // namespace host
