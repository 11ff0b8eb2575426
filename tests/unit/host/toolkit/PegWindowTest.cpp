#include "toolkit/PegWindow.h"

#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "support/RunningToolkit.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using test::StartedToolkit;

class DarkThing : public PegThing {
public:
    void Draw(PegPainter& painter) override { painter.fill(Area(), host::Level::DARK); }
};

bool panelIs(host::Level level)
{
    const host::Picture picture = host::Lcd::current()->picture();
    return std::ranges::all_of(picture.pixels, [=](std::uint8_t pixel) { return pixel == static_cast<int>(level); });
}

TEST(PegWindow, CoversWhatLiesBelowWithTheBackground)
{
    const StartedToolkit toolkit;
    auto* const below = new DarkThing;
    below->Resize(gpPresent->Area());
    gpPresent->Add(below);
    host::Lcd::current()->paint();
    EXPECT_TRUE(panelIs(host::Level::DARK));

    auto* const window = new PegWindow(FF_NONE);
    EXPECT_EQ(window->Type(), TYPE_WINDOW);
    EXPECT_EQ(window->Style(), FF_NONE);
    window->Resize(gpPresent->Area());
    gpPresent->Add(window);
    host::Lcd::current()->paint();
    EXPECT_TRUE(panelIs(host::Level::BARE));
}

} // namespace
