#pragma once

#include "apps/deskphone/Choice.h"
#include "apps/deskphone/Screen.h"

#include <array>

namespace deskphone {

/// The settings with their values. Choosing one leads to its possible values.
class Settings : public Screen {
public:
    Settings(DisplayAPI::Display& display, Screen* parent);

    std::array<Choice*, 2> choices() { return {&mRingTone, &mBrightness}; }

private:
    void build() override;
    void chosen(int row) override;

    Choice mRingTone;
    Choice mBrightness;
    std::array<DisplayAPI::ListItem*, 2> mRows{};
};

} // namespace deskphone
