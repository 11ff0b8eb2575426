#pragma once

namespace DisplayAPI {

/// How the toolkit is started and stopped: each once for a display, on the GUI thread. Afterwards the main queue and
/// its free pool exist.
class PegInitAndCleanUpIfc {
public:
    virtual ~PegInitAndCleanUpIfc() = default;
    virtual void init() = 0;
    virtual void cleanUp() = 0;
};

/// Starts and stops the real toolkit.
class PegInitAndCleanUp : public PegInitAndCleanUpIfc {
public:
    void init() override;
    void cleanUp() override;
};

} // namespace DisplayAPI
