#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

/// The toolkit's string: a length and a zero-terminated array of characters. Only the UCS-2 form is instantiated.
template <typename Char>
class _template_PString { // NOLINT(readability-identifier-naming)
public:
    _template_PString() noexcept;
    explicit _template_PString(const Char* text);
    _template_PString(const Char* text, std::size_t length);
    _template_PString(const _template_PString& other);
    _template_PString(_template_PString&& other) noexcept;
    _template_PString& operator=(_template_PString other) noexcept;
    ~_template_PString();

    std::size_t length() const noexcept;
    bool empty() const noexcept;

    /// Never null; `data()[length()]` is zero.
    const Char* data() const noexcept;

    bool operator==(const _template_PString& other) const noexcept;

private:
    std::unique_ptr<Char[]> mText;
    std::uint32_t mLength = 0; ///< leaves room for what stands behind the string
};

/// One UCS-2 unit: a code point up to U+FFFF.
using PegChar = unsigned short;
using PegString = _template_PString<PegChar>;

extern template class _template_PString<PegChar>;
