#pragma once

#include <filesystem>
#include <string_view>

namespace simulator {

/// Set to 1 in the environment it makes what is shown the expected screens: `compare` writes its files.
inline constexpr char UPDATE_SCREENS_VARIABLE[] = "DISPLAYAPI_UPDATE_SCREENS";

bool updatesScreens();

/// The file of a panel's own beside the common one: for `menu.txt` on the panel wp1 `menu.wp1.txt`, and for that
/// itself.
std::filesystem::path ownScreen(const std::filesystem::path& file, std::string_view panel);

/// The file with which a panel's screen is compared: its own where there is one, else the common one.
std::filesystem::path expectedScreen(const std::filesystem::path& folder, std::string_view name,
                                     std::string_view panel);

} // namespace simulator
