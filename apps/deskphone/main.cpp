#include "apps/deskphone/Desk.h"
#include "apps/deskphone/Memory.h"
#include "apps/deskphone/Network.h"
#include "host/Phone.h"
#include "kit/Phone.h"

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace {

struct Options {
    std::string state; ///< empty: none
    std::string numbers = deskphone::USUAL_NUMBERS;
};

/// Where the value of an option that begins so goes; null where there is no such option.
std::string* valueOf(Options& options, std::string_view name)
{
    if (name == "--state")
        return &options.state;
    return name == "--numbers" ? &options.numbers : nullptr;
}

/// Takes "--state DIR" and "--state=DIR"; nothing where the words are others.
std::optional<Options> optionsIn(int count, char** words)
{
    Options options;
    for (int at = 1; at < count; ++at) {
        const std::string_view word = words[at];
        const std::size_t end = word.find('=');
        std::string* const value = valueOf(options, word.substr(0, end));
        const bool isApart = end == std::string_view::npos;
        if (value == nullptr || (isApart && ++at == count))
            return std::nullopt;
        *value = isApart ? words[at] : word.substr(end + 1);
        if (value->empty())
            return std::nullopt;
    }
    return options;
}

} // namespace

int main(int count, char** words)
{
    const std::optional<Options> options = optionsIn(count, words);
    if (!options) {
        std::fputs("usage: deskphone [--state DIR] [--numbers FILE]   (the folder that keeps its calls and contacts, "
                   "and who can be "
                   "called)\n",
                   stderr);
        return 2;
    }
    deskphone::Memory memory(options->state);
    deskphone::Network network(options->numbers, memory.contacts());
    DisplayAPI::kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
    deskphone::Desk desk(phone.display(), network.telephony(), "en", memory);
    desk.open();
    phone.run();
}
