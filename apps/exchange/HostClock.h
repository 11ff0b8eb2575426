#pragma once

#include "apps/exchange/Clock.h"

namespace exchange {

/// The host's clock, real or virtual: the virtual one waits at each moment for which something is planned, until the
/// exchange has told all that happens then. For one exchange: two would take each other's wake().
class HostClock final : public Clock {
public:
    std::int64_t now() const override;
    void sleepUntil(std::int64_t until) override;
    void wake() override;

private:
    bool mIsWoken = false; ///< guarded by the host's clock
};

} // namespace exchange
