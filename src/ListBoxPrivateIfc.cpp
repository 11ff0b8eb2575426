#include "DisplayAPI/ListBoxPrivateIfc.h"

namespace DisplayAPI {

void ListBoxPrivateIfc::setSelected(ListItemPrivateIfc*) {}

} // namespace DisplayAPI
