#pragma once

#include <set>
#include <string>

namespace audit {

/// The keys of a language's catalogue but those of the keypad, which no screen shows. Throws where it cannot be
/// read.
std::set<std::string> keysOf(const std::string& fileName);

/// Whether `shown` may be this text with something in the place of %1, %2 and so on.
bool isThatText(const std::string& text, const std::string& shown);

} // namespace audit
