#pragma once

#include <string>

namespace deskphone {

/// A large phone book with names in several scripts. Entries are put together when they are asked for.
class PhoneBook {
public:
    static int size();

    /// REQUIRES: 0 <= index < size()
    static std::string name(int index);
    static std::string kind(int index);
    static std::string number(int index);
};

/// A number as it is dialled: people write it with spaces and the like.
std::string digitsOf(std::string number);

} // namespace deskphone
