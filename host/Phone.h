#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

/// The panels that the workstation can be.
enum class Variant { PLAIN, NARROW, WP1 };

/// "plain", "narrow" and "wp1"; anything else is no variant.
std::optional<Variant> variantFromName(std::string_view name);
std::string_view nameOf(Variant variant);

/// The panel of this process: what setVariant() said last, else the environment's DISPLAYAPI_VARIANT, else what the
/// current application's hardware variant wants: plain, or wp1 for 0.
/// An unknown name in the environment is reported once on stderr and counts as none.
Variant variant();

/// Takes effect at the next toolkit start.
void setVariant(Variant variant);

/// Pixels of the panel.
struct PanelSize {
    int width;
    int height;
};
PanelSize panelSize();

/// What an application passes to its Display's constructor: the hardware name and the narrow flag.
std::string hardwareName();
bool isNarrow();

} // namespace host
