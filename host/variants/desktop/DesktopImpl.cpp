#include "host/variants/desktop/DesktopImpl.h"

#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/desktop/KeyCommands.h"
#include "utilities/ICC.h"
#include "utilities/TranslatorIfc.h"

#include <array>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr PegRect FULL_AREA{0, 0, 239, 127};
constexpr PegRect SMALL_AREA{0, 0, 207, 41};
constexpr int FULL_KEYS = 5;
constexpr int SMALL_KEYS = 3;

constexpr std::array DAYS{"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

/// A text as a sub-item, where there is one and a part of its place can be seen.
std::string item(const char* name, const std::string& text, const PegRect& place,
                 const std::vector<DisplayAPIUtils::Rect>& visible)
{
    if (text.empty() || !isVisible(place, visible))
        return {};
    return screen::subItem(name, screen::textLine(0, text));
}

} // namespace

DesktopSide::Impl::Impl(DesktopSide& desktop, Desktop* facade, Panel panel)
    : self(desktop), owner(facade), lamps(panel == Panel::FULL ? FULL_KEYS : SMALL_KEYS),
      widget(std::in_place_type<host::DesktopWidget>, panel == Panel::FULL ? FULL_AREA : SMALL_AREA, lamps.keys())
{
    widget->setListener(this);
}

DesktopSide::Impl::~Impl()
{
    if (widget != nullptr)
        widget->setListener(nullptr);
}

int DesktopSide::Impl::Message(const PegMessage& message)
{
    if (message.wType != PM_APPLICATION_CHANGED)
        return PegThing::Message(message);
    if (widget != nullptr) {
        readDayNames();
        widget->applicationChanged();
    }
    return 0;
}

void DesktopSide::Impl::desktopKey(int key)
{
    if (MenuCommand* const command = keyCommand(key))
        self.postCommand(command, owner);
}

void DesktopSide::Impl::desktopChanged()
{
    self.generateDisplayChangedEvent();
}

void DesktopSide::Impl::desktopHidden()
{
    self.postCommand(Desktop::HIDDEN_COMMAND(), owner);
}

void DesktopSide::Impl::desktopWoken()
{
    self.postCommand(wakeCommand(), owner);
}

void DesktopSide::Impl::setMode(const std::string& text, const std::string& detail)
{
    if (text != mode.text)
        previousMode = mode;
    mode = {text, detail};
    showMode();
}

void DesktopSide::Impl::setPreviousMode(const std::string& text)
{
    if (text != mode.text)
        return;
    mode = std::exchange(previousMode, {});
    showMode();
}

void DesktopSide::Impl::showMode()
{
    if (widget != nullptr)
        widget->setMode(ICC::fromUTF8toUNICODE(mode.text), ICC::fromUTF8toUNICODE(mode.detail));
}

void DesktopSide::Impl::setPostTimeIcon(int icon, bool on)
{
    if (widget == nullptr || icon < 1 || icon > host::POST_TIME_ICONS)
        return;
    if (on)
        widget->setPostTimeIcon(icon);
    else if (widget->state().postTimeIcon == icon)
        widget->setPostTimeIcon(0);
}

void DesktopSide::Impl::setIcon(host::DesktopIcon icon, bool on)
{
    if (widget != nullptr)
        widget->setIcon(icon, on);
}

void DesktopSide::Impl::readDayNames()
{
    if (widget == nullptr)
        return;
    host::DesktopWidget::DayNames names;
    for (std::size_t i = 0; i < names.size() && dayTranslator != nullptr; ++i)
        names[i] = dayTranslator->translate(DAYS[i]);
    widget->setDayNames(std::move(names));
}

/// The screensaver's pictures are no text.
std::string DesktopSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    if (widget == nullptr || !isVisible(widget->Area(), visible))
        return {};
    if (widget->hasScreensaver())
        return screen::object("Desktop", {});
    const host::DesktopState& state = widget->state();
    const host::DesktopParts parts = widget->parts();
    const auto utf8 = [](const PegString& text) { return ICC::fromUNICODEtoUTF8(text); };
    const bool seesMode = isVisible(parts.mode, visible);
    std::string contents = seesMode ? screen::caption(mode.text) : std::string();
    contents += item("DesktopText", mode.detail, parts.mode, visible);
    contents += item("DesktopText", utf8(state.time), parts.time, visible);
    contents += item("DesktopText", wholeDate(state), parts.date, visible);
    contents += item("DesktopText", utf8(state.extension), parts.extension, visible);
    contents += item("DesktopText", utf8(state.logo), parts.logo, visible);
    for (std::size_t key = 0; key < state.keys.size(); ++key)
        contents += item("DesktopKey", utf8(state.label(key).text), parts.label(static_cast<int>(key)), visible);
    return screen::object("Desktop", contents);
}

} // namespace DisplayAPI
