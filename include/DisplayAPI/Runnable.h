#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

/// A piece of work for a DisplayThread, which owns it and deletes it after running it, on that thread. It must not
/// throw.
class DISPLAYAPI_EXPORT Runnable {
public:
    /// The work, on a thread of the pool.
    virtual void run() = 0;

    virtual ~Runnable() = default;
};

} // namespace DisplayAPI
