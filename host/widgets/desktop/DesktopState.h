#pragma once

#include "toolkit/PString.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace host {

/// The icons of a desktop's status bar, in their order.
enum class DesktopIcon { KEY_LOCK, DO_NOT_DISTURB, RINGER_OFF, MOBILE_USER, MAINTENANCE, CALLBACKS };
constexpr std::size_t DESKTOP_ICONS = 6;

/// The label of a programmable key, on one of its levels.
struct KeyLabel {
    PegString text{};
    bool enabled = true;

    friend bool operator==(const KeyLabel&, const KeyLabel&) = default;
};

struct DesktopKey {
    std::array<KeyLabel, 2> levels{}; ///< unshifted, shifted
    bool isLit = false;
};

/// What a desktop shows.
struct DesktopState {
    const KeyLabel& label(std::size_t key) const { return keys[key].levels[isShifted ? 1 : 0]; }

    PegString mode;
    PegString modeDetail;
    PegString time;
    std::string date;
    std::string day; ///< its name
    PegString extension;
    PegString logo;
    bool hasArrow = false; ///< before the extension
    std::array<bool, DESKTOP_ICONS> icons{};
    int postTimeIcon = 0; ///< none, or counted from 1
    std::vector<DesktopKey> keys;
    bool isShifted = false;
};

} // namespace host
