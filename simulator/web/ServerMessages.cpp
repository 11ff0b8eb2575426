#include "simulator/web/ServerMessages.h"

#include "simulator/screen/Json.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace simulator {

namespace {

/// More of a row than anybody wants to hear.
constexpr std::size_t LONGEST_TEXT = 400;
constexpr std::size_t MOST_OFFERS = 100;

std::string dump(const Json& json)
{
    constexpr int ON_ONE_LINE = -1;
    constexpr bool IN_ASCII = true;
    return json.dump(ON_ONE_LINE, ' ', IN_ASCII, Json::error_handler_t::replace);
}

std::string beginning(const std::string& text)
{
    const PegString whole = ICC::fromUTF8toUNICODE(text);
    return ICC::fromUNICODEtoUTF8(PegString(whole.data(), std::min(whole.length(), LONGEST_TEXT)));
}

Json toJson(const ScreenRow& row)
{
    Json json = {{"text", beginning(row.text)}, {"selected", row.selected}};
    if (row.lasting != row.text)
        json["lasting"] = beginning(row.lasting);
    return json;
}

} // namespace

std::string applicationMessage(std::string_view program, std::string_view panel)
{
    return dump({{"application", {{"program", program}, {"panel", panel}}}});
}

std::string rowsMessage(const std::vector<ScreenRow>& rows, std::string_view language)
{
    Json all = Json::array();
    for (const ScreenRow& row : rows)
        all.push_back(toJson(row));
    return dump({{"language", language}, {"rows", all}});
}

std::string standingMessage(bool isStanding)
{
    return dump({{"standing", isStanding}});
}

std::string lampsMessage(const std::vector<bool>& lamps)
{
    return dump({{"lamps", lamps}});
}

std::string exchangeMessage(const std::optional<std::vector<host::Wire::Offer>>& offers)
{
    if (!offers)
        return dump({{"exchange", nullptr}});
    Json all = Json::array();
    for (const host::Wire::Offer& offer : *offers)
        if (all.size() < MOST_OFFERS)
            all.push_back({{"label", beginning(offer.label)}, {"line", offer.line}});
    return dump({{"exchange", all}});
}

std::string signsMessage(host::CallSigns signs)
{
    constexpr std::array<std::string_view, 3> LAMPS = {"dark", "lit", "blinks"};
    return dump({{"signs", {{"lamp", LAMPS.at(static_cast<std::size_t>(signs.lamp))}, {"lifted", signs.isLifted}}}});
}

std::string answerMessage(const std::string& answer)
{
    return dump({{"answer", beginning(answer)}});
}

std::string fullMessage(std::size_t pages)
{
    return dump({{"full", pages}});
}

std::string endedMessage()
{
    return dump({{"ended", true}});
}

std::string languageTag(std::string_view locale)
{
    std::string tag(locale.substr(0, locale.find_first_of(".@")));
    std::ranges::replace(tag, '_', '-');
    return tag == "C" || tag == "POSIX" ? std::string() : tag;
}

} // namespace simulator
