#pragma once

#include "widgets/KestrelListBox.h"

/// The list of the 208 x 42 panel: two lines of 24 characters. With a title the first line is the title. GUI
/// thread only.
class KestrelListBoxWP1 : public KestrelListBox {
public:
    KestrelListBoxWP1();

    int Message(const PegMessage& message) override;
};
