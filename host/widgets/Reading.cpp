#include "host/widgets/Reading.h"

#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace host {

namespace {

constexpr std::array<std::string_view, 4> LANGUAGES{"ar", "he", "fa", "ur"};

} // namespace

bool isReadFromTheRight()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    if (application == nullptr || application->getLocale().length() < 2)
        return false;
    const PegChar* locale = application->getLocale().data();
    return std::any_of(LANGUAGES.begin(), LANGUAGES.end(), [&](std::string_view language) {
        return std::equal(language.begin(), language.end(), locale,
                          [](char one, PegChar other) { return static_cast<PegChar>(one) == other; });
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
