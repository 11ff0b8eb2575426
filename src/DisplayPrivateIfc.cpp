#include "DisplayAPI/DisplayPrivateIfc.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

/// The displays that live now, few as a rule. Never destroyed: a static displayable asks as late as at process exit.
std::vector<const DisplayPrivateIfc*>& living()
{
    static auto* const displays = new std::vector<const DisplayPrivateIfc*>;
    return *displays;
}

} // namespace

DisplayPrivateIfc::DisplayPrivateIfc()
{
    living().push_back(this);
}

DisplayPrivateIfc::~DisplayPrivateIfc()
{
    std::erase(living(), this);
}

bool DisplayPrivateIfc::lives(const DisplayPrivateIfc* display)
{
    return std::find(living().begin(), living().end(), display) != living().end();
}

} // namespace DisplayAPI
