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

/// The panel of this process: what setVariant() said last, else the environment's DISPLAYAPI_VARIANT, else plain.
/// An unknown name in the environment is reported once on stderr and means plain.
Variant variant();

/// Takes effect at the next toolkit start.
void setVariant(Variant variant);

/// What an application passes to its Display's constructor: the hardware name and the narrow flag.
std::string hardwareName();
bool isNarrow();

} // namespace host
