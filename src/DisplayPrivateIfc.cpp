#include "DisplayAPI/DisplayPrivateIfc.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

struct LivingDisplay {
    const DisplayPrivateIfc* display;
    const std::vector<Displayable*>* stack = nullptr;
};

/// The displays that live now, few as a rule. Never destroyed: a static displayable asks as late as at process exit.
std::vector<LivingDisplay>& living()
{
    static auto* const displays = new std::vector<LivingDisplay>;
    return *displays;
}

auto find(const DisplayPrivateIfc* display)
{
    return std::ranges::find(living(), display, &LivingDisplay::display);
}

} // namespace

DisplayPrivateIfc::DisplayPrivateIfc()
{
    living().push_back({this});
}

DisplayPrivateIfc::~DisplayPrivateIfc()
{
    living().erase(find(this));
}

bool DisplayPrivateIfc::lives(const DisplayPrivateIfc* display)
{
    return find(display) != living().end();
}

bool DisplayPrivateIfc::holds(const DisplayPrivateIfc* display, const Displayable* displayable)
{
    const auto found = find(display);
    return found != living().end() && found->stack != nullptr &&
           std::ranges::find(*found->stack, displayable) != found->stack->end();
}

void DisplayPrivateIfc::setStack(const std::vector<Displayable*>& stack)
{
    find(this)->stack = &stack;
}

} // namespace DisplayAPI
