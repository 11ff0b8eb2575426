#include "toolkit/PString.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

template <typename Char>
std::size_t lengthOf(const Char* text)
{
    std::size_t length = 0;
    while (text && text[length] != 0)
        ++length;
    return length;
}

template <typename Char>
constexpr Char EMPTY[1] = {};

} // namespace

template <typename Char>
_template_PString<Char>::_template_PString() noexcept = default;

template <typename Char>
_template_PString<Char>::_template_PString(const Char* text) : _template_PString(text, lengthOf(text))
{
}

template <typename Char>
_template_PString<Char>::_template_PString(const Char* text, std::size_t length)
{
    if (!text || length == 0)
        return;
    mLength = static_cast<std::uint32_t>(std::min<std::size_t>(length, std::numeric_limits<std::uint32_t>::max()));
    mText.reset(new Char[std::size_t{mLength} + 1]);
    std::copy_n(text, mLength, mText.get());
    mText[mLength] = 0;
}

template <typename Char>
_template_PString<Char>::_template_PString(const _template_PString& other)
    : _template_PString(other.data(), other.mLength)
{
}

template <typename Char>
_template_PString<Char>::_template_PString(_template_PString&& other) noexcept
    : mText(std::move(other.mText)), mLength(std::exchange(other.mLength, 0))
{
}

template <typename Char>
_template_PString<Char>& _template_PString<Char>::operator=(_template_PString other) noexcept
{
    std::swap(mText, other.mText);
    std::swap(mLength, other.mLength);
    return *this;
}

template <typename Char>
_template_PString<Char>::~_template_PString() = default;

template <typename Char>
std::size_t _template_PString<Char>::length() const noexcept
{
    return mLength;
}

template <typename Char>
bool _template_PString<Char>::empty() const noexcept
{
    return mLength == 0;
}

template <typename Char>
const Char* _template_PString<Char>::data() const noexcept
{
    return mText ? mText.get() : EMPTY<Char>;
}

template <typename Char>
bool _template_PString<Char>::operator==(const _template_PString& other) const noexcept
{
    return std::equal(data(), data() + mLength, other.data(), other.data() + other.mLength);
}

template class _template_PString<PegChar>;
