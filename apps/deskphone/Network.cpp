#include "apps/deskphone/Network.h"

#include "apps/deskphone/ContactBook.h"

#include <cstdio>
#include <memory>
#include <optional>

namespace deskphone {

using exchange::Behaviour;
using exchange::Numbers;

const std::string USUAL_NUMBERS = APP_NUMBERS;

namespace {

/// Everybody answers after a while.
Numbers::Others othersIn(const ContactBook& contacts)
{
    const auto answers =
        std::make_shared<const Behaviour>(Behaviour{.arrival = Behaviour::Arrival::ANSWERS, .after = 3000});
    return [&contacts, answers](const std::string& number) -> std::optional<exchange::Number> {
        const std::optional<Contact> known = contacts.withNumber(number);
        return known ? std::optional(exchange::Number{{number, known->name}, answers}) : std::nullopt;
    };
}

Numbers numbersIn(const std::string& file, const ContactBook& contacts)
{
    Numbers numbers = Numbers::read(file);
    for (const std::string& error : numbers.errors)
        std::fprintf(stderr, "deskphone: %s\n", error.c_str());
    numbers.everybodyElse = othersIn(contacts);
    return numbers;
}

} // namespace

Network::Network(const std::string& numbers, const ContactBook& contacts)
    : mExchange(numbersIn(numbers, contacts), mClock), mWire(mExchange)
{
}

} // namespace deskphone
