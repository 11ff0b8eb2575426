#include "host/frontend/Wire.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace host {

namespace {

// Never destroyed: a front end's thread may ask as late as at process exit.

struct Wires {
    std::mutex mutex;
    std::vector<const Wire*> wires;
    std::function<void()> listener;
};

Wires& allWires()
{
    static auto* const wires = new Wires;
    return *wires;
}

template <typename Change>
void changeWires(Change change)
{
    std::function<void()> listener;
    {
        const std::lock_guard lock(allWires().mutex);
        change(allWires().wires);
        listener = allWires().listener;
    }
    if (listener)
        listener();
}

} // namespace

Wire::Wire(std::string name, Listener listener, std::vector<Offer> offers)
    : mName(std::move(name)), mListener(std::move(listener)), mOffers(std::move(offers))
{
    changeWires([this](auto& wires) { wires.push_back(this); });
}

Wire::~Wire()
{
    changeWires([this](auto& wires) { std::erase(wires, this); });
}

/// REQUIRES: the lock is held. Null where there is none.
const Wire* Wire::find(std::string_view name)
{
    const auto& wires = allWires().wires;
    const auto found =
        std::find_if(wires.rbegin(), wires.rend(), [=](const Wire* wire) { return wire->mName == name; });
    return found != wires.rend() ? *found : nullptr;
}

std::string Wire::say(std::string_view name, std::string_view line)
{
    const std::lock_guard lock(allWires().mutex);
    const Wire* const wire = find(name);
    return wire != nullptr ? wire->mListener(line) : "the program has no " + std::string(name);
}

bool Wire::isThere(std::string_view name)
{
    const std::lock_guard lock(allWires().mutex);
    return find(name) != nullptr;
}

std::vector<Wire::Offer> Wire::offers(std::string_view name)
{
    const std::lock_guard lock(allWires().mutex);
    const Wire* const wire = find(name);
    return wire != nullptr ? wire->mOffers : std::vector<Offer>();
}

void Wire::setListener(std::function<void()> listener)
{
    const std::lock_guard lock(allWires().mutex);
    allWires().listener = std::move(listener);
}

} // namespace host
