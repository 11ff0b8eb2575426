#pragma once

#include "utilities/RequestObserver.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>

/// The names of codes, as they stand in the source, for whoever looks at requests from outside.
namespace DisplayAPI {

namespace codes {

/// As the compiler spells it in the name of a function that has it as an argument.
template <auto CODE>
consteval std::string_view spelled()
{
    return __PRETTY_FUNCTION__;
}

constexpr bool isOfName(char character)
{
    return character == '_' || (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9');
}

/// What stands last in `CODE = DisplayAPI::{anonymous}::SIZE`. Empty for a number.
constexpr std::string_view nameIn(std::string_view text)
{
    text = text.substr(text.find("CODE = "));
    text = text.substr(0, text.find_first_of(";]"));
    const auto begin = std::find_if_not(text.rbegin(), text.rend(), isOfName).base();
    const std::string_view name = text.substr(static_cast<std::size_t>(begin - text.begin()));
    return name.empty() || (name.front() >= '0' && name.front() <= '9') ? std::string_view() : name;
}

/// The name alone, ended by a zero, so that nothing of what it was found in stays. The facade keeps those apart whose
/// enumerations have the same name, each in its own file: g++ does not.
template <typename Facade, auto CODE>
struct Name {
    static constexpr std::size_t SIZE = nameIn(spelled<CODE>()).size();
    static constexpr std::array<char, SIZE + 1> TEXT = [] {
        std::array<char, SIZE + 1> text{};
        std::ranges::copy(nameIn(spelled<CODE>()), text.begin());
        return text;
    }();
    static constexpr const char* ADDRESS = SIZE > 0 ? TEXT.data() : nullptr;
};

template <typename Facade, typename Enum, int... CODES>
consteval std::array<const char*, sizeof...(CODES)> namesOf(std::integer_sequence<int, CODES...>)
{
    return {Name<Facade, static_cast<Enum>(CODES)>::ADDRESS...};
}

} // namespace codes

/// Names the codes of `Facade`: those of the enumeration `Enum`, of which `LARGEST` is one, or almost the largest.
/// Numbers have no names.
template <typename Facade, typename Enum, int LARGEST>
class CodeNames {
public:
    /// Whoever names this has them made known when the library is loaded.
    static void areKnown() { static_cast<void>(&ADDED); }

private:
    static constexpr int COUNT = static_cast<int>(std::bit_ceil(static_cast<unsigned>(LARGEST) + 1));
    static constexpr auto NAMES = [] {
        if constexpr (std::is_enum_v<Enum>)
            return codes::namesOf<Facade, Enum>(std::make_integer_sequence<int, COUNT>());
        else
            return std::array<const char*, 0>();
    }();

    inline static RequestNames sNames{&typeid(Facade), NAMES.data(), static_cast<int>(NAMES.size()), nullptr};
    inline static const bool ADDED = std::is_enum_v<Enum> && (addRequestNames(sNames), true);
};

} // namespace DisplayAPI
