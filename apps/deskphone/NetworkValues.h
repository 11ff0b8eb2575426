#pragma once

#include "DisplayAPI/TextField.h"

#include <string>

namespace deskphone {

/// Whether what has been typed into a field of that type can be used: an address with all its parts, a day that there
/// is. Nothing is complete as well.
bool isComplete(const std::string& value, DisplayAPI::TextField::FieldType type);

} // namespace deskphone
