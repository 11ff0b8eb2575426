#pragma once

#include "host/utilities/TranslationMemory.h"
#include "simulator/script/ScriptText.h"

#include <functional>
#include <string>
#include <vector>

namespace simulator {

/// A text of the screen as a script says it: by the catalogue's keys that it comes from, with what has been filled in,
/// or as it stands where it comes from none. Keys that have the same text stand there side by side.
class TextOrigin {
public:
    using Origins = std::function<std::vector<host::TranslationMemory::Origin>(const std::string& text)>;

    explicit TextOrigin(Origins origins) : mOrigins(std::move(origins)) {}

    ScriptText of(const std::string& text) const { return of(text, 0); }

private:
    ScriptText of(const std::string& text, int depth) const;
    ScriptText ofParts(const std::string& text) const;

    Origins mOrigins;
};

} // namespace simulator
