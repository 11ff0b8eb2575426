#pragma once

#include "toolkit/PegThing.h"

/// A thing that fills its area with the background before its children are painted. One that draws itself fills it,
/// too, or has a type of its own: what a window covers is not painted.
class PegWindow : public PegThing {
public:
    explicit PegWindow(std::uint16_t style = 0);

    void Draw(PegPainter& painter) override;
};
