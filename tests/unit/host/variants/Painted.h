#pragma once

#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"

#include <gtest/gtest.h>

namespace test {

/// Does something, and wants the panel to look then as if all of it were painted anew.
template <typename Work>
void expectPaintedAsAnew(Work work)
{
    host::Lcd& lcd = *host::Lcd::current();
    lcd.paint();
    work();
    lcd.paint();
    const host::Picture painted = lcd.picture();
    gpPresent->Invalidate();
    lcd.paint();
    EXPECT_TRUE(painted.pixels == lcd.picture().pixels) << "something that has changed is not painted";
}

} // namespace test
