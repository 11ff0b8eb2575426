#pragma once

#include "host/utilities/Spin.h"

namespace test {

/// How often the calling thread looks for what never comes, before it would sleep: once where it does not spin.
inline int looksInVain()
{
    int looks = 0;
    host::Spin::until([&] {
        ++looks;
        return false;
    });
    return looks;
}

} // namespace test
