#pragma once

#include "DisplayAPI/TextField.h"
#include "host/widgets/edit/EditKind.h"

namespace DisplayAPI {

/// What is typed into a field of such a type, which may be any number.
inline host::EditKind kindOf(TextField::FieldType type)
{
    using enum host::EditKind;
    switch (type) {
    case TextField::NUMBER: return NUMBER;
    case TextField::TELEPHONE_NUMBER: return PHONE_NUMBER;
    case TextField::PASSWORD: return PASSWORD;
    case TextField::IP_ADDRESS: return IP_ADDRESS;
    case TextField::DATE: return DATE;
    case TextField::TIME: return TIME;
    case TextField::NAME: return NAME;
    default: return TEXT;
    }
}

} // namespace DisplayAPI
