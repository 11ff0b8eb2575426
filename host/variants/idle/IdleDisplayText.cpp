#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/idle/IdleDisplayImpl.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

using host::IdleKind;
using host::IdlePart;

/// What a part of the screen is called; null for those that say nothing.
const char* nameOf(IdleKind kind)
{
    switch (kind) {
    case IdleKind::MOBILE_USER: return "MobileUser";
    case IdleKind::DATE: return "Date";
    case IdleKind::TIME: return "Time";
    case IdleKind::STATUS_LINE: return "SystemWindow";
    case IdleKind::BRANDING: return "Branding";
    case IdleKind::FORWARDING: return "Forwarding";
    case IdleKind::SERVER_FORWARDING: return "ServerBasedForwarding";
    case IdleKind::MESSAGES: return "Messages";
    case IdleKind::MISSED_CALLS: return "MissedCalls";
    case IdleKind::SYSTEM_MESSAGE: return "SystemMessage";
    case IdleKind::NAME:
    case IdleKind::LOGO: return nullptr;
    }
    return nullptr;
}

/// The name is the caption; others are sub-items, with a text or only there.
std::string describe(const IdlePart& part)
{
    const std::string text = ICC::fromUNICODEtoUTF8(part.text);
    if (part.kind == IdleKind::NAME)
        return screen::caption(text);
    const char* const name = nameOf(part.kind);
    if (name == nullptr)
        return {};
    return screen::subItem(name, text.empty() ? std::string() : screen::textLine(0, text));
}

std::string menuAsText(const host::IdleScreen& idle, const std::vector<DisplayAPIUtils::Rect>& visible)
{
    const host::CommandColumn& column = idle.commands();
    std::string rows;
    for (int row = column.top(); row < column.count(); ++row) {
        const PegRect area = column.rowArea(row);
        if (area.bottom < area.top)
            break;
        if (isVisible(area, visible))
            rows += screen::subItem("MenuItem", screen::textLine(0, ICC::fromUNICODEtoUTF8(column.at(row).text)));
    }
    return rows;
}

} // namespace

std::string IdleDisplaySide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    if (screen == nullptr || !isVisible(screen->Area(), visible))
        return {};
    std::string contents;
    for (const IdlePart& part : screen->parts())
        if (isVisible(part.area, visible))
            contents += describe(part);
    if (screen->isMenuOpen())
        contents += menuAsText(*screen, visible);
    return screen::object("IdleDisplay", contents);
}

} // namespace DisplayAPI
