#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace re2 {
class RE2;
}

namespace simulator {

/// A regular expression of whoever asks, over Unicode, in RE2's syntax. Searching takes time in proportion to the text,
/// whatever the pattern is.
class Regex {
public:
    explicit Regex(const std::string& pattern);
    ~Regex();

    /// What is wrong with the pattern, a large one included; empty when all is well.
    std::string error() const;

    /// Whether a part of the text matches.
    bool isIn(std::string_view text) const;

private:
    std::unique_ptr<const re2::RE2> mPattern;
};

} // namespace simulator
