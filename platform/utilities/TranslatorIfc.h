#pragma once

#include <string>

/// Looks up texts in the language that is chosen now. Implemented by the application or the platform.
class TranslatorIfc {
public:
    virtual ~TranslatorIfc() = default;

    /// The text for `key` in UTF-8. From any thread, also under the library's locks: it calls nothing of the library.
    virtual std::string translate(const std::string& key) = 0;
};
