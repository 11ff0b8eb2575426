#pragma once

#include "apps/deskphone/Contact.h"

#include <string>

namespace deskphone {

/// In a row: "Zoë Ångström, home".
inline std::string textOf(const Contact& contact)
{
    return contact.numbers.empty() ? contact.name : contact.name + ", " + contact.numbers.front().kind;
}

} // namespace deskphone
