#include "simulator/core/Regex.h"

#include <re2/re2.h>

namespace simulator {

namespace {

/// A pattern that needs more when it is compiled is refused: a search goes through all of it.
constexpr int MOST_MEMORY = 512 * 1024;

re2::RE2::Options options()
{
    re2::RE2::Options options;
    options.set_log_errors(false);
    options.set_max_mem(MOST_MEMORY);
    return options;
}

} // namespace

Regex::Regex(const std::string& pattern) : mPattern(std::make_unique<const re2::RE2>(pattern, options())) {}

Regex::~Regex() = default;

std::string Regex::error() const
{
    return mPattern->ok() ? std::string() : mPattern->error();
}

bool Regex::isIn(std::string_view text) const
{
    return mPattern->ok() && re2::RE2::PartialMatch({text.data(), text.size()}, *mPattern);
}

} // namespace simulator
