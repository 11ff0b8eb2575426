#pragma once

#include "utilities/TranslatorIfc.h"

#include <string>

namespace test {

/// Says the key in the language of the moment, which stands before it.
class Dictionary : public TranslatorIfc {
public:
    std::string translate(const std::string& key) override { return language + key; }

    std::string language = "en:";
};

} // namespace test
