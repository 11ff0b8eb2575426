#include "doubles/ScreenPrivate.h"

#include "doubles/Recorder.h"

#include <utility>

namespace doubles {

ScreenPrivate::ScreenPrivate(std::string name, Kind kind, PegThing* widget)
    : mName(std::move(name)), mKind(kind), mWidget(widget)
{
}

ScreenPrivate::~ScreenPrivate()
{
    reactions.clear();
    note("die");
}

template <typename... Args>
void ScreenPrivate::note(const char* call, const Args&... args)
{
    Recorder::instance().note(this, mName + ": " + call, args...);
    react(call);
}

/// The reaction may delete this.
void ScreenPrivate::react(const std::string& call)
{
    const auto reaction = reactions.find(call);
    if (reaction != reactions.end())
        std::exchange(reaction->second, [] {})();
}

void ScreenPrivate::releaseOwnership()
{
    note("releaseOwnership");
    mOwnership.releaseOwnership();
}

void ScreenPrivate::gainOwnership()
{
    note("gainOwnership");
    mOwnership.gainOwnership();
}

void ScreenPrivate::show()
{
    note("show");
}

void ScreenPrivate::lostFocus()
{
    note("lostFocus");
}

void ScreenPrivate::connectDisplayChangedSignal(DisplayAPI::DisplayPrivateIfc* display)
{
    note(display != nullptr ? "connect" : "disconnect");
    DisplayablePrivate::connectDisplayChangedSignal(display);
}

void ScreenPrivate::setSysWindowSize(int lines)
{
    note("setSysWindowSize", lines);
}

void ScreenPrivate::setSysWindowText(std::string line, int index)
{
    note("setSysWindowText", line, index);
}

std::string ScreenPrivate::serialise()
{
    react("serialise");
    return text.value_or(DisplayablePrivate::serialise());
}

std::string ScreenPrivate::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    lastRects = visible;
    return DisplayablePrivate::serialise(visible);
}

void ScreenPrivate::dropWidget()
{
    delete std::exchange(mWidget, nullptr);
}

} // namespace doubles
