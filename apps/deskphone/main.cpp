#include "apps/deskphone/Desk.h"
#include "host/Phone.h"
#include "kit/Phone.h"

#include <cstdio>
#include <optional>
#include <string_view>

namespace {

constexpr std::string_view STATE = "--state";

/// The folder of --state, or none; nothing where the words are others.
std::optional<std::string> stateIn(int count, char** words)
{
    if (count == 1)
        return "";
    const std::string_view first = words[1];
    if (count == 2 && first.starts_with("--state=") && first.size() > STATE.size() + 1)
        return std::string(first.substr(STATE.size() + 1));
    if (count == 3 && first == STATE && *words[2] != '\0')
        return words[2];
    return std::nullopt;
}

} // namespace

int main(int count, char** words)
{
    const std::optional<std::string> state = stateIn(count, words);
    if (!state) {
        std::fputs("usage: deskphone [--state DIR]   (the folder that keeps its calls)\n", stderr);
        return 2;
    }
    DisplayAPI::kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
    deskphone::Desk desk(phone.display(), "en", *state);
    desk.open();
    phone.run();
}
