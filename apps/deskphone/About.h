#pragma once

#include "apps/deskphone/Screen.h"

#include <cstdint>

namespace deskphone {

/// What this telephone is and how long it has been running; that row renews itself every second.
class About : public Screen {
public:
    About(Telephone& telephone, Place* parent);

    void stopWorking() override;

private:
    void build() override;
    void chosen(int) override {}

    std::string seconds() const;
    std::int64_t untilNextSecond() const;

    std::int64_t mStart;
    bool mStop = false; ///< guarded by the clock's lock
    DisplayAPI::ListItem* mUptimeRow = nullptr;
};

} // namespace deskphone
