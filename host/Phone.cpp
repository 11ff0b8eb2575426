#include "host/Phone.h"

#include "widgets/KestrelApplication.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace host {

namespace {

struct Panel {
    std::string_view name;
    std::string_view hardware;
    PanelSize size;
};

/// In the order of Variant.
constexpr std::array<Panel, 3> PANELS{{
    {"plain", "plain", {240, 128}},
    {"narrow", "plain", {168, 128}},
    {"wp1", "WP1", {208, 42}},
}};

const Panel& panelOf(Variant variant)
{
    return PANELS[static_cast<std::size_t>(variant)];
}

constexpr int NOT_CHOSEN = -1;
std::atomic<int> gChosen{NOT_CHOSEN};

std::optional<Variant> fromEnvironment()
{
    const char* const name = std::getenv("DISPLAYAPI_VARIANT");
    if (name == nullptr || *name == '\0')
        return std::nullopt;
    const std::optional<Variant> variant = variantFromName(name);
    if (!variant)
        std::fprintf(stderr, "DISPLAYAPI_VARIANT is '%s'; it may be plain, narrow or wp1\n", name);
    return variant;
}

Variant fromApplication()
{
    const bool isWp1 = KestrelApplication::getHardwareVariant(KestrelApplication::getCurrentApplication()) == 0;
    return isWp1 ? Variant::WP1 : Variant::PLAIN;
}

} // namespace

std::optional<Variant> variantFromName(std::string_view name)
{
    for (std::size_t at = 0; at < PANELS.size(); ++at)
        if (PANELS[at].name == name)
            return static_cast<Variant>(at);
    return std::nullopt;
}

std::string_view nameOf(Variant variant)
{
    return panelOf(variant).name;
}

Variant variant()
{
    static const std::optional<Variant> environment = fromEnvironment();
    if (const int chosen = gChosen; chosen != NOT_CHOSEN)
        return static_cast<Variant>(chosen);
    return environment ? *environment : fromApplication();
}

void setVariant(Variant variant)
{
    gChosen = static_cast<int>(variant);
}

PanelSize panelSize()
{
    return panelOf(variant()).size;
}

std::string hardwareName()
{
    return std::string(panelOf(variant()).hardware);
}

bool isNarrow()
{
    return variant() == Variant::NARROW;
}

} // namespace host
