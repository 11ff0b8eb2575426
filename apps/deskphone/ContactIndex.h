#pragma once

#include "apps/deskphone/Contact.h"

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace deskphone {

/// Finds contacts by the words of their names and by their numbers, whatever accents and capitals there are. On one
/// thread at a time.
class ContactIndex {
public:
    /// Takes it in, in the place of what was known of it.
    void put(const Contact& contact);
    void remove(ContactId contact);

    struct Found {
        std::vector<ContactId> best; ///< the first of them
        std::size_t count = 0;       ///< of all
    };

    /// Those who have everything that is typed: first where it begins their names, then where it begins words or a
    /// number, then where it stands within. Each time the latest contact first. Everybody where nothing is typed.
    Found find(const std::string& typed, std::size_t most) const;

private:
    std::map<ContactId, std::string, std::greater<>> mTexts; ///< folded
};

/// What is compared: each word behind a space, in small letters without accents.
std::string foldedWords(const std::string& text);

} // namespace deskphone
