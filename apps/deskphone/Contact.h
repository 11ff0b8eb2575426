#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace deskphone {

using ContactId = std::int64_t;

/// A number of somebody, and what it is of in the user's words: "home".
struct ContactNumber {
    std::string kind;
    std::string number;

    bool operator==(const ContactNumber&) const = default;
};

/// Somebody whom the user knows.
struct Contact {
    enum class Group { NONE, FAMILY, FRIENDS, WORK };
    static constexpr int USUAL_VOLUME = 5, LOUDEST = 10;

    std::string name;
    std::vector<ContactNumber> numbers = {};
    Group group = Group::NONE;
    bool isFavourite = false;
    int volume = USUAL_VOLUME; ///< of the ringing, 0 to LOUDEST
    std::string birthday = {}; ///< as it is typed
    ContactId id = 0;          ///< 0 while nobody keeps it

    /// The one that is called first; empty where there is none.
    std::string number() const { return numbers.empty() ? std::string() : numbers.front().number; }

    bool operator==(const Contact&) const = default;
};

} // namespace deskphone
