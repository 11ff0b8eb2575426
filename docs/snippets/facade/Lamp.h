#pragma once

#include "DisplayAPI/Widget.h"

namespace DisplayAPI {

class LampPrivateIfc;

/// The lamp that tells of waiting messages.
///
/// Threads: safe from any thread. Off the GUI thread the constructor and blink() post and return at once; isLit() and
/// the destructor wait.
/// Ownership: a lamp owns its GUI-thread side.
class DISPLAYAPI_EXPORT Lamp : public Widget {
public:
    Lamp();
    Lamp(const Lamp&) = delete;
    Lamp& operator=(const Lamp&) = delete;
    ~Lamp() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// Blinks with this period; 0 puts the lamp out.
    void blink(int milliseconds);

    /// Whether it blinks.
    bool isLit();

private:
    struct Ops;

    void create();
    void destroy();

    LampPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
