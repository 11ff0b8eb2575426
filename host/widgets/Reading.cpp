#include "host/widgets/Reading.h"

#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace host {

namespace {

/// Former and three-letter names as well: locales are the application's.
constexpr std::array<std::string_view, 16> LANGUAGES{"ar", "dv", "fa", "he",  "iw",  "ji",  "ps",  "sd",
                                                     "ug", "ur", "yi", "ara", "fas", "heb", "per", "urd"};

/// The locale up to its country, its script or its encoding.
std::span<const PegChar> languageOf(const PegString& locale)
{
    constexpr std::string_view SEPARATORS = "_-.@";
    const std::span text(locale.data(), locale.length());
    return {text.begin(), std::ranges::find_first_of(text, SEPARATORS)};
}

bool isSameLetter(PegChar one, char other)
{
    constexpr int UPPER_TO_LOWER = 'a' - 'A';
    const bool isUpper = one >= 'A' && one <= 'Z';
    return (isUpper ? one + UPPER_TO_LOWER : one) == other;
}

} // namespace

bool isReadFromTheRight()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    if (application == nullptr)
        return false;
    return std::ranges::any_of(LANGUAGES, [spoken = languageOf(application->getLocale())](std::string_view language) {
        return std::ranges::equal(spoken, language, isSameLetter);
    });
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
