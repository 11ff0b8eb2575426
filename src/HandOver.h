#pragma once

#include "utilities/TranslationInfo.h"

#include <memory>

namespace DisplayAPI {

/// A row's function for a setter that makes a translation its own, which travels with its record until then.
template <typename Side, void (Side::*SETTER)(TranslationInfo*)>
void handOver(Side& side, std::unique_ptr<TranslationInfo> text)
{
    (side.*SETTER)(text.release());
}

} // namespace DisplayAPI
