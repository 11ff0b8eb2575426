#include "apps/deskphone/NetworkValues.h"

#include <arpa/inet.h>
#include <chrono>
#include <cstdio>

namespace deskphone {

using DisplayAPI::TextField;

namespace {

bool isAddress(const std::string& value)
{
    in_addr address{};
    return inet_pton(AF_INET, value.c_str(), &address) == 1;
}

bool isDay(const std::string& value)
{
    int year = 0;
    unsigned int month = 0, day = 0;
    constexpr std::size_t LENGTH = 10; // 2026-11-22
    return value.size() == LENGTH && std::sscanf(value.c_str(), "%4d-%2u-%2u", &year, &month, &day) == 3 &&
           std::chrono::year_month_day(std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)).ok();
}

} // namespace

bool isComplete(const std::string& value, TextField::FieldType type)
{
    if (value.empty())
        return true;
    if (type == TextField::IP_ADDRESS)
        return isAddress(value);
    return type != TextField::DATE || isDay(value);
}

} // namespace deskphone
