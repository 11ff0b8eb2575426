#include "host/frontend/Wire.h"

#include <algorithm>
#include <exception>
#include <mutex>
#include <set>
#include <utility>

namespace host {

namespace {

// Never destroyed: a front end's thread may ask as late as at process exit.

struct Wires {
    std::mutex telling; ///< held while the front end's listener runs; before the other one
    std::mutex mutex;   ///< guards what follows
    std::vector<const Wire*> wires;
    std::function<void()> listener;
    std::mutex witnessing; ///< held while the witness hears
    Wire::Witness witness;
};

Wires& allWires()
{
    static auto* const wires = new Wires;
    return *wires;
}

template <typename Change>
void changeWires(Change change)
{
    const std::lock_guard telling(allWires().telling);
    std::function<void()> listener;
    {
        const std::lock_guard lock(allWires().mutex);
        change(allWires().wires);
        listener = allWires().listener;
    }
    if (listener)
        listener();
}

/// Threads of front ends are not the program's to end.
std::string heard(const Wire::Listener& listener, std::string_view line)
{
    try {
        return listener(line);
    } catch (const std::exception& failure) {
        return std::string("the program has failed: ") + failure.what();
    }
}

} // namespace

struct Wire::Ear {
    std::mutex mutex; ///< held while one hears
    Listener listener;
};

Wire::Wire(std::string name, Listener listener, std::vector<Offer> offers)
    : mName(std::move(name)), mEar(std::make_shared<Ear>()), mOffers(std::move(offers))
{
    mEar->listener = std::move(listener);
    changeWires([this](auto& wires) { wires.push_back(this); });
}

Wire::~Wire()
{
    changeWires([this](auto& wires) { std::erase(wires, this); });
    const std::lock_guard lock(mEar->mutex);
    mEar->listener = nullptr;
}

void Wire::setOffers(std::vector<Offer> offers)
{
    changeWires([&](auto&) { mOffers = std::move(offers); });
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
    const auto witness = [&](const std::string* refusal) {
        const std::lock_guard lock(allWires().witnessing);
        if (allWires().witness)
            allWires().witness(name, line, refusal);
    };
    witness(nullptr);
    std::string refusal = tell(name, line);
    witness(&refusal);
    return refusal;
}

void Wire::setWitness(Witness witness)
{
    const std::lock_guard lock(allWires().witnessing);
    allWires().witness = std::move(witness);
}

std::string Wire::tell(std::string_view name, std::string_view line)
{
    if (const std::shared_ptr<Ear> ear = earOf(name); ear != nullptr) {
        const std::lock_guard lock(ear->mutex);
        if (ear->listener)
            return heard(ear->listener, line);
    }
    return "the program has no " + std::string(name);
}

std::shared_ptr<Wire::Ear> Wire::earOf(std::string_view name)
{
    const std::lock_guard lock(allWires().mutex);
    const Wire* const wire = find(name);
    return wire != nullptr ? wire->mEar : nullptr;
}

bool Wire::isThere(std::string_view name)
{
    const std::lock_guard lock(allWires().mutex);
    return find(name) != nullptr;
}

std::vector<std::string> Wire::names()
{
    const std::lock_guard lock(allWires().mutex);
    std::set<std::string> names;
    for (const Wire* wire : allWires().wires)
        names.insert(wire->mName);
    return {names.begin(), names.end()};
}

std::vector<Wire::Offer> Wire::offers(std::string_view name)
{
    const std::lock_guard lock(allWires().mutex);
    const Wire* const wire = find(name);
    return wire != nullptr ? wire->mOffers : std::vector<Offer>();
}

void Wire::setListener(std::function<void()> listener)
{
    const std::lock_guard telling(allWires().telling);
    const std::lock_guard lock(allWires().mutex);
    allWires().listener = std::move(listener);
}

} // namespace host
