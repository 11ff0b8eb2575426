#include "apps/deskphone/Network.h"

#include "apps/deskphone/PhoneBook.h"

#include <cstdio>
#include <memory>

namespace deskphone {

using exchange::Behaviour;
using exchange::Numbers;

const std::string USUAL_NUMBERS = APP_NUMBERS;

namespace {

Numbers numbersIn(const std::string& file)
{
    Numbers numbers = Numbers::read(file);
    for (const std::string& error : numbers.errors)
        std::fprintf(stderr, "deskphone: %s\n", error.c_str());
    return numbers;
}

Numbers withPhoneBook(Numbers numbers)
{
    const auto answers =
        std::make_shared<const Behaviour>(Behaviour{.arrival = Behaviour::Arrival::ANSWERS, .after = 3000});
    for (int entry = 0; entry < PhoneBook::size(); ++entry)
        numbers.others.push_back({{digitsOf(PhoneBook::number(entry)), PhoneBook::name(entry)}, answers});
    return numbers;
}

std::vector<exchange::Party> partiesOf(const Numbers& numbers)
{
    std::vector<exchange::Party> parties;
    for (const exchange::Number& number : numbers.others)
        parties.push_back(number.party);
    return parties;
}

} // namespace

Network::Network(const std::string& numbers) : Network(numbersIn(numbers)) {}

Network::Network(Numbers numbers) : mExchange(withPhoneBook(numbers), mClock), mWire(mExchange, partiesOf(numbers)) {}

} // namespace deskphone
