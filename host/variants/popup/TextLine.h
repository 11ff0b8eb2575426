#pragma once

#include "host/variants/popup/OwnedText.h"
#include "utilities/ICC.h"

namespace host {
struct Icon;
}

namespace DisplayAPI {

/// The one, a blank, and the other; without the blank where one of them is empty.
inline std::string joined(const std::string& before, const std::string& behind)
{
    return before + (!before.empty() && !behind.empty() ? " " : "") + behind;
}

/// A text, what stands before it, and an icon in front of both. GUI thread only.
struct TextLine {
    PegString shown() const { return ICC::fromUTF8toUNICODE(joined(prefix.text(), text.text())); }

    OwnedText prefix, text;
    const host::Icon* icon = nullptr;
};

} // namespace DisplayAPI
