#include "apps/exchange/Directory.h"

namespace exchange {

namespace {

constexpr int MOST_HOPS = 10;

bool forwardsAtOnce(const Number* number)
{
    return number != nullptr && number->behaviour->arrival == Behaviour::Arrival::FORWARDS &&
           number->behaviour->after == 0;
}

} // namespace

Directory::Directory(std::vector<Number> numbers, Numbers::Others everybodyElse, const std::vector<Line>& own)
    : mNumbers(std::move(numbers)), mEverybodyElse(std::move(everybodyElse))
{
    const Behaviour busy{Behaviour::Arrival::IS_BUSY};
    for (const Line& line : own)
        mOwn[line.party.number] = {line.party, std::make_shared<const Behaviour>(busy)};
    for (std::size_t at = 0; at < mNumbers.size(); ++at)
        mPlaces[mNumbers[at].party.number] = at;
}

Directory::Destination Directory::find(const std::string& number, int& hops) const
{
    const Number* found = this->number(number);
    Party forwardedBy;
    while (hops <= MOST_HOPS && forwardsAtOnce(found) && ++hops <= MOST_HOPS) {
        if (forwardedBy.number.empty())
            forwardedBy = found->party;
        const std::string& next = found->behaviour->text;
        if (this->number(next) == nullptr)
            return {party(next), forwardedBy, nullptr, Reason::UNKNOWN_NUMBER};
        found = this->number(next);
    }
    if (found == nullptr)
        return {party(number), {}, nullptr, Reason::UNKNOWN_NUMBER};
    if (hops > MOST_HOPS)
        return {found->party, forwardedBy, nullptr, Reason::FAILURE, "Forwarded too often"};
    if (found->behaviour->arrival == Behaviour::Arrival::IS_BUSY)
        return {found->party, forwardedBy, nullptr, Reason::BUSY};
    if (found->behaviour->arrival == Behaviour::Arrival::FAILS)
        return {found->party, forwardedBy, nullptr, Reason::FAILURE, found->behaviour->text};
    return {found->party, forwardedBy, found->behaviour};
}

Party Directory::party(const std::string& number) const
{
    const Number* const found = this->number(number);
    return found != nullptr ? found->party : Party{number, {}};
}

const Number* Directory::number(const std::string& number) const
{
    if (const auto own = mOwn.find(number); own != mOwn.end())
        return &own->second;
    const auto place = mPlaces.find(number);
    return place != mPlaces.end() ? &mNumbers[place->second] : elsewhere(number);
}

const Number* Directory::elsewhere(const std::string& number) const
{
    std::optional<Number> found = mEverybodyElse != nullptr ? mEverybodyElse(number) : std::nullopt;
    return found ? &(mElsewhere[number] = std::move(*found)) : nullptr;
}

void Directory::define(Number number)
{
    const auto [place, isNew] = mPlaces.try_emplace(number.party.number, mNumbers.size());
    if (isNew) {
        if (const Number* const known = elsewhere(number.party.number); known != nullptr && number.party.name.empty())
            number.party.name = known->party.name;
        return mNumbers.push_back(std::move(number));
    }
    Number& present = mNumbers[place->second];
    if (!number.party.name.empty())
        present.party.name = std::move(number.party.name);
    present.behaviour = std::move(number.behaviour);
}

std::vector<Party> Directory::parties() const
{
    std::vector<Party> parties;
    parties.reserve(mNumbers.size());
    for (const Number& number : mNumbers)
        parties.push_back(number.party);
    return parties;
}

} // namespace exchange
