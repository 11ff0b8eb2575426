#pragma once

#include "toolkit/PString.h"

#include <string>

/// Conversions between the application's UTF-8 and the toolkit's UCS-2. From any thread; never fail.
class ICC {
public:
    /// Each maximal ill-formed sequence and each code point above U+FFFF becomes one U+FFFD; no other byte is lost.
    static PegString fromUTF8toUNICODE(const std::string& text);

    /// Surrogates, which UCS-2 does not have, become U+FFFD.
    static std::string fromUNICODEtoUTF8(const PegString& text);

    /// Characters outside ASCII become "?".
    static std::string fromUNICODEtoASCII(const PegString& text);
};
