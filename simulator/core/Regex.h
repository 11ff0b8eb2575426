#pragma once

#include <memory>
#include <string>

namespace simulator {

/// A regular expression of whoever asks, over Unicode: one that would take too long, or too much, finds nothing.
class Regex {
public:
    explicit Regex(const std::string& pattern);
    ~Regex();

    /// What is wrong with the pattern; empty when all is well.
    std::string error() const;

    /// Whether a part of the text matches.
    bool isIn(const std::string& text) const;

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

} // namespace simulator
