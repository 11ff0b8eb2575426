#include "host/widgets/Reading.h"

#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace host {

namespace {

/// Two or three letters in a number, capitals as small ones: each text on the panel asks. 0 for everything else.
template <typename Letters>
constexpr std::uint32_t codeOf(const Letters& letters)
{
    constexpr int MOST = 3, BITS = 8, UPPER_TO_LOWER = 'a' - 'A';
    std::uint32_t code = 0;
    if (letters.size() > MOST)
        return 0;
    for (const int letter : letters) {
        if (letter < 'A' || letter > 'z')
            return 0;
        const bool isUpper = letter >= 'A' && letter <= 'Z';
        code = code << BITS | static_cast<std::uint32_t>(isUpper ? letter + UPPER_TO_LOWER : letter);
    }
    return code;
}

/// Former and three-letter names as well: locales are the application's.
constexpr std::array LANGUAGES = [] {
    std::array<std::uint32_t, 16> codes{};
    std::ranges::transform(std::to_array<std::string_view>({"ar", "dv", "fa", "he", "iw", "ji", "ps", "sd", "ug", "ur",
                                                            "yi", "ara", "fas", "heb", "per", "urd"}),
                           codes.begin(), [](std::string_view language) { return codeOf(language); });
    return codes;
}();

/// The locale up to its country, its script or its encoding.
std::span<const PegChar> languageOf(const PegString& locale)
{
    constexpr std::string_view SEPARATORS = "_-.@";
    const std::span text(locale.data(), locale.length());
    return {text.begin(), std::ranges::find_first_of(text, SEPARATORS)};
}

} // namespace

bool isReadFromTheRight()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    if (application == nullptr)
        return false;
    return std::ranges::find(LANGUAGES, codeOf(languageOf(application->getLocale()))) != LANGUAGES.end();
}

Align startAlign()
{
    return isReadFromTheRight() ? Align::RIGHT : Align::LEFT;
}

Align endAlign()
{
    return isReadFromTheRight() ? Align::LEFT : Align::RIGHT;
}

} // namespace host
