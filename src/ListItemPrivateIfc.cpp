#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

void ListItemPrivateIfc::gainOwnership() {}

void ListItemPrivateIfc::setText(std::string) {}

void ListItemPrivateIfc::setText(TranslationInfo*) {}

} // namespace DisplayAPI
