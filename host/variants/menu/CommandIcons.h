#pragma once

#include "host/lcd/Icons.h"

namespace DisplayAPI {
class MenuCommand;
}

namespace host {

/// The picture that a menu command has in a menu; null where it has none. A picture of the application's own is told by
/// a symbol: this panel shows none.
const Icon* iconOf(const DisplayAPI::MenuCommand& command);

} // namespace host
