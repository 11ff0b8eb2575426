#include "simulator/core/Regex.h"

#include <unicode/regex.h>

namespace simulator {

namespace {

constexpr int LONGEST_SEARCH = 20;       // steps of ICU's, each about a millisecond
constexpr int LARGEST_STACK = 1'000'000; // bytes

} // namespace

struct Regex::Impl {
    explicit Impl(const std::string& text)
        : pattern(icu::RegexPattern::compile(icu::UnicodeString::fromUTF8(text), 0, status))
    {
    }

    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexPattern> pattern;
};

Regex::Regex(const std::string& pattern) : mImpl(std::make_unique<Impl>(pattern)) {}

Regex::~Regex() = default;

std::string Regex::error() const
{
    return U_FAILURE(mImpl->status) ? u_errorName(mImpl->status) : std::string();
}

bool Regex::isIn(const std::string& text) const
{
    UErrorCode status = mImpl->status;
    const icu::UnicodeString input = icu::UnicodeString::fromUTF8(text);
    const std::unique_ptr<icu::RegexMatcher> matcher(U_SUCCESS(status) ? mImpl->pattern->matcher(input, status)
                                                                       : nullptr);
    if (matcher == nullptr || U_FAILURE(status))
        return false;
    matcher->setTimeLimit(LONGEST_SEARCH, status);
    matcher->setStackLimit(LARGEST_STACK, status);
    return matcher->find(status) != 0 && U_SUCCESS(status) != 0;
}

} // namespace simulator
