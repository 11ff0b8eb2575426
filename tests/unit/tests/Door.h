#pragma once

#include "Operations.h"
#include "support/FacadeContract.h"

#include <algorithm>

namespace test {

class DoorPrivate {
public:
    void open(int degrees, int seconds) { note("open", degrees, seconds); }
    int angle() { return note("angle"), 90; }

private:
    template <typename... Args>
    void note(const std::string& call, const Args&... args)
    {
        doubles::Recorder::instance().note(this, "DoorPrivate::" + call, args...);
    }
};

/// A facade with some operations as they ought to be and some that are broken.
class Door : public DisplayAPI::Widget {
public:
    explicit Door(bool hasSide) : mImplementation(hasSide ? new DoorPrivate : nullptr) {}
    ~Door() override { delete mImplementation; }

    void open(int degrees, int seconds) { Ops::call<2>(*this, mImplementation, degrees, seconds); }
    int angle() { return Ops::call<3>(*this, mImplementation); }

    void openHere(int degrees, int seconds) { mImplementation->open(degrees, seconds); }
    int angleOrWorse() { return std::max(angle(), 0); }
    void openTwice(int degrees, int seconds)
    {
        open(degrees, seconds);
        open(degrees, seconds);
    }

    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override
    {
        Ops::carryOut(*this, mImplementation, request);
        for (int i = 0; i < completions; ++i)
            signalComplete(request);
    }

    inline static int completions = 1;

private:
    using Ops =
        DisplayAPI::Operations<DisplayAPI::Posts<2, &DoorPrivate::open>, DisplayAPI::Waits<3, &DoorPrivate::angle, -1>>;

    DoorPrivate* mImplementation;
};

template <bool BARE>
struct DoorSubject : WidgetSubject<Door> {
    static constexpr bool CAN_BE_BARE = BARE;

    explicit DoorSubject(bool hasSide) { facade = std::make_unique<Door>(hasSide); }
    static std::string arrival(const std::string& call) { return "DoorPrivate::" + call; }
};

using Doors = DoorSubject<true>;
using DoorsWithSides = DoorSubject<false>;

} // namespace test
