#pragma once

#include "host/lcd/Painter.h"
#include "host/widgets/idle/Logo.h"
#include "host/widgets/status/StatusLines.h"

#include <cstddef>
#include <vector>

namespace host {

/// Where calls go instead: an address, an arrow, or both.
struct IdleForwarding {
    PegString address;
    bool hasArrow = false;

    bool isShown() const { return hasArrow || !address.empty(); }
    bool operator==(const IdleForwarding&) const = default;
};

/// What an idle screen shows but for its messages.
struct IdleContents {
    PegString name; ///< of the telephone
    PegString branding;
    IdleForwarding forwarding;
    IdleForwarding serverForwarding;
    int messages = 0;
    int missedCalls = 0;
    bool hasMobileUser = false;

    bool operator==(const IdleContents&) const = default;
};

/// What an idle screen shows at a moment.
struct IdleState {
    const IdleContents& contents;
    const StatusLines& lines;
    const Logo& logo;
    const std::vector<PegString>& systemMessages;
    std::size_t turn; ///< counts what has been shown of what stands in one place
    PegString date;
    PegString time;
};

enum class IdleKind {
    NAME,
    MOBILE_USER,
    DATE,
    TIME,
    STATUS_LINE,
    LOGO,
    BRANDING,
    FORWARDING,
    SERVER_FORWARDING,
    MESSAGES,
    MISSED_CALLS,
    SYSTEM_MESSAGE
};

/// A part of an idle screen: an icon with a text behind it, or one of both, or a picture.
struct IdlePart {
    IdleKind kind;
    PegRect area;
    PegString text{};
    const Icon* icon = nullptr;
    TextLook look{};
    const Picture* picture = nullptr; ///< the logo's, until the next layout
};

/// What is in its place on the panel, status line first. What has no room is left out.
std::vector<IdlePart> idleParts(const PegRect& area, const IdleState& state);

/// How many take turns in one place.
std::size_t idleTurns(const IdleState& state);

/// The bar behind the status line, with the rule below.
PegRect idleBar(const PegRect& area);

constexpr int IDLE_ICON_WIDTH = 14;

} // namespace host
