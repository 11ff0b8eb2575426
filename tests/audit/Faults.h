#pragma once

#include <string>
#include <vector>

namespace audit {

/// What is wrong with a text: `cut`, `glyph` (a character that no font has) or `unseen` (no screen shows it).
struct Fault {
    std::string kind;
    std::string language;
    std::string panel;
    std::string screen;
    std::string text;

    /// As it stands in the list of what is allowed.
    std::string line() const;
};

/// Lines `KIND LANGUAGE PANEL SCREEN TEXT -- REASON`. `*` stands for any language, panel or screen, and at the end of
/// TEXT for any rest; a text that lacks a glyph has to be named whole.
class Allowed {
public:
    /// Throws where the file cannot be read.
    explicit Allowed(const std::string& fileName);

    /// Lines that cannot be read, and those without a reason.
    const std::vector<std::string>& errors() const { return mErrors; }

    bool covers(const Fault& fault) const;

private:
    std::vector<Fault> mLines;
    std::vector<std::string> mErrors;
};

} // namespace audit
