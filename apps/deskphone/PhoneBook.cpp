#include "apps/deskphone/PhoneBook.h"

#include "apps/deskphone/PhoneBookNames.h"

#include <string_view>

namespace deskphone {

namespace {

/// An index is read as a number of four digits, each with a base of its own: the one of the script changes fastest, so
/// that every page of the book shows all scripts.
struct Position {
    explicit Position(int index)
        : names(PHONE_BOOK_NAMES[take(index, PHONE_BOOK_NAMES.size())]), given(names.given[take(index, 10)]),
          family(names.family[take(index, 25)]), kind(names.kinds[take(index, 5)])
    {
    }

    static std::size_t take(int& index, std::size_t base)
    {
        const auto digit = static_cast<std::size_t>(index) % base;
        index /= static_cast<int>(base);
        return digit;
    }

    const Names& names;
    std::string_view given;
    std::string_view family;
    std::string_view kind;
};

} // namespace

int PhoneBook::size()
{
    const Names& first = PHONE_BOOK_NAMES.front();
    return static_cast<int>(PHONE_BOOK_NAMES.size() * first.given.size() * first.family.size() * first.kinds.size());
}

std::string PhoneBook::name(int index)
{
    const Position at(index);
    const auto first = at.names.familyFirst ? at.family : at.given;
    const auto second = at.names.familyFirst ? at.given : at.family;
    return std::string(first) + std::string(at.names.between) + std::string(second);
}

std::string PhoneBook::kind(int index)
{
    return std::string(Position(index).kind);
}

std::string PhoneBook::number(int index)
{
    return "030 " + std::to_string(1000000 + index * 7919 % 9000000);
}

std::string digitsOf(std::string number)
{
    std::erase_if(number,
                  [](char letter) { return std::string_view(" -/().").find(letter) != std::string_view::npos; });
    return number;
}

} // namespace deskphone
