#include "host/widgets/desktop/DesktopLook.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/TextRenderer.h"
#include "host/widgets/Reading.h"
#include "utilities/ICC.h"

#include <algorithm>

namespace host {

namespace {

constexpr int SMALL_HEIGHT = 64; ///< panels below it are small
constexpr int ICON_GAP = 3;
constexpr int TEXT_GAP = 6;

/// What the panels differ in.
struct Sizes {
    int line;
    int margin;
    int labels; ///< their width
    int below;  ///< free below the last line
    int gap;    ///< between labels
    int time;   ///< the room for it, with the icon behind it
};

constexpr Sizes FULL{.line = 16, .margin = 6, .labels = 80, .below = 3, .gap = 1, .time = 72};
constexpr Sizes NARROW{.line = 16, .margin = 4, .labels = 60, .below = 3, .gap = 1, .time = 72};
constexpr Sizes SMALL{.line = 14, .margin = 3, .labels = 64, .below = 0, .gap = 0, .time = 72};
constexpr int WIDE = 200;

bool isSmall(const PegRect& area)
{
    return heightOf(area) < SMALL_HEIGHT;
}

const Sizes& sizesOf(const PegRect& area)
{
    if (isSmall(area))
        return SMALL;
    return widthOf(area) > WIDE ? FULL : NARROW;
}

const Icon& iconOf(std::size_t which)
{
    static constexpr std::array<const Icon*, DESKTOP_ICONS> ICONS{&icons::PADLOCK, &icons::NO_ENTRY, &icons::BELL_OFF,
                                                                  &icons::MOBILE,  &icons::WRENCH,   &icons::CALLBACK};
    return *ICONS[which];
}

const Icon& postTimeIcon(int number)
{
    static constexpr std::array<const Icon*, POST_TIME_ICONS> ICONS{&icons::LETTER, &icons::FORWARD, &icons::PERSON,
                                                                    &icons::HANDSET};
    return *ICONS[static_cast<std::size_t>(number - 1)];
}

enum class Side { START, END };

/// The part of a line that is so wide, and what is left of the line.
struct Cut {
    PegRect part;
    PegRect rest;
};

Cut cut(const PegRect& line, int width, Side side, int gap)
{
    const int taken = std::clamp(width, 0, widthOf(line));
    const int left = std::max(0, widthOf(line) - taken - gap);
    const bool atLeft = (side == Side::START) != isReadFromTheRight();
    const PegRect begin = rectAt(line.left, line.top, atLeft ? taken : left, heightOf(line));
    const int endWidth = atLeft ? left : taken;
    const PegRect end = rectAt(line.right + 1 - endWidth, line.top, endWidth, heightOf(line));
    return atLeft ? Cut{begin, end} : Cut{end, begin};
}

int widthOfText(PegPainter& painter, const PegString& text, Font font)
{
    return painter.textWidth(text, font, TextMask::MAX_WIDTH);
}

/// Bold where there is room for it.
Font fontFor(PegPainter& painter, const PegString& text, int width)
{
    return widthOfText(painter, text, Font::TEXT_BOLD) <= width ? Font::TEXT_BOLD : Font::TEXT;
}

/// Writes at that side of the line, over at most its width, and returns what is left of the line.
PegRect write(PegPainter& painter, const PegRect& line, const PegString& text, Font font, Side side, bool runs = false)
{
    if (text.empty() || isEmpty(line))
        return line;
    const Cut place = cut(line, painter.textWidth(text, font, widthOf(line)), side, TEXT_GAP);
    painter.text(place.part, text, {.font = font, .align = startAlign(), .runs = runs});
    return place.rest;
}

PegRect writeBold(PegPainter& painter, const PegRect& line, const PegString& text, Side side, bool runs = false)
{
    return write(painter, line, text, fontFor(painter, text, widthOf(line)), side, runs);
}

PegRect drawIcon(PegPainter& painter, const PegRect& line, const Icon& icon, Side side, Level level = Level::DARK)
{
    const Cut place = cut(line, icon.width(), side, ICON_GAP);
    painter.icon(icon, place.part, level);
    return place.rest;
}

PegRect drawIcons(PegPainter& painter, PegRect line, const DesktopState& state, Side side)
{
    for (std::size_t i = 0; i < DESKTOP_ICONS; ++i) {
        const std::size_t which = side == Side::START ? i : DESKTOP_ICONS - 1 - i;
        if (state.icons[which])
            line = drawIcon(painter, line, iconOf(which), side);
    }
    return line;
}

void drawTime(PegPainter& painter, const PegRect& line, const DesktopState& state)
{
    const PegRect rest =
        state.postTimeIcon > 0 ? drawIcon(painter, line, postTimeIcon(state.postTimeIcon), Side::END) : line;
    writeBold(painter, rest, state.time, Side::END, true);
}

/// The day goes before the date does.
PegRect drawDate(PegPainter& painter, const PegRect& line, const DesktopState& state, Side side)
{
    const PegString date = ICC::fromUTF8toUNICODE(state.date);
    const PegString whole = ICC::fromUTF8toUNICODE(wholeDate(state));
    const bool fits = widthOfText(painter, whole, Font::TEXT) <= widthOf(line);
    return write(painter, line, fits ? whole : date, Font::TEXT, side, true);
}

void drawMode(PegPainter& painter, const PegRect& line, const DesktopState& state)
{
    const PegRect rest = writeBold(painter, line, state.mode, Side::START);
    write(painter, rest, state.modeDetail, Font::TEXT, Side::START);
}

/// On one line: of the mode, the date and the mode's detail each has what the ones before leave.
void drawModeAndDate(PegPainter& painter, const PegRect& line, const DesktopState& state)
{
    const int date = widthOfText(painter, ICC::fromUTF8toUNICODE(state.date), Font::TEXT);
    const PegRect room = cut(line, date, Side::END, TEXT_GAP).rest;
    const Font font = fontFor(painter, state.mode, widthOf(room));
    const int mode = std::min(widthOfText(painter, state.mode, font), widthOf(room));
    const Cut place = cut(line, mode, Side::START, mode > 0 ? TEXT_GAP : 0);
    write(painter, place.part, state.mode, font, Side::START);
    const PegRect rest = drawDate(painter, place.rest, state, Side::END);
    if (widthOfText(painter, state.modeDetail, Font::TEXT) <= widthOf(rest))
        write(painter, rest, state.modeDetail, Font::TEXT, Side::START);
}

PegRect drawExtension(PegPainter& painter, const PegRect& line, const DesktopState& state)
{
    const PegRect rest = state.hasArrow ? drawIcon(painter, line, icons::FORWARD, Side::START) : line;
    return writeBold(painter, rest, state.extension, Side::START);
}

/// The labels keep to the keys, whatever the direction in which texts are read.
void drawLabel(PegPainter& painter, const PegRect& cell, const DesktopState& state, std::size_t key)
{
    const KeyLabel& label = state.label(key);
    const bool isLit = state.keys[key].isLit;
    const Level ink = label.enabled ? Level::DARK : Level::LIGHT;
    if (isLit)
        painter.fill(cell, label.enabled ? Level::DARK : Level::MIDDLE);
    else
        painter.frame(cell, ink);
    const PegRect inside = rectAt(cell.left + 4, cell.top, widthOf(cell) - 8, heightOf(cell));
    const PegRect text = state.isShifted
                             ? drawIcon(painter, inside, icons::SMALL_ARROW_UP, Side::START, isLit ? Level::BARE : ink)
                             : inside;
    painter.text(text, label.text, {.font = Font::TEXT, .align = Align::CENTRE, .inverted = isLit});
}

void drawLabels(PegPainter& painter, const DesktopParts& parts, const DesktopState& state)
{
    for (std::size_t key = 0; key < state.keys.size(); ++key)
        if (const PegRect cell = parts.label(static_cast<int>(key)); !painter.isClippedOut(cell))
            drawLabel(painter, cell, state, key);
}

void drawBar(PegPainter& painter, const PegRect& area, const DesktopParts& parts)
{
    const int lines = isSmall(area) ? 1 : 2;
    const int width = isSmall(area) ? widthOf(area) - widthOf(parts.labels) : widthOf(area);
    const PegRect bar = rectAt(area.left, area.top, width, lines * heightOf(parts.time));
    painter.fill(bar, Level::LIGHT);
    if (!isSmall(area))
        painter.fill(rectAt(area.left, bar.bottom + 1, width, 1), Level::DARK);
}

void drawOnSmallPanel(PegPainter& painter, const DesktopParts& parts, const DesktopState& state)
{
    drawIcons(painter, parts.icons, state, Side::START);
    drawModeAndDate(painter, parts.date, state);
    write(painter, drawExtension(painter, parts.extension, state), state.logo, Font::TEXT, Side::END);
}

void drawOnFullPanel(PegPainter& painter, const DesktopParts& parts, const DesktopState& state)
{
    drawMode(painter, parts.mode, state);
    drawDate(painter, drawIcons(painter, parts.icons, state, Side::END), state, Side::START);
    drawExtension(painter, parts.extension, state);
    painter.text(parts.logo, state.logo,
                 {.font = fontFor(painter, state.logo, widthOf(parts.logo)), .align = Align::CENTRE});
}

} // namespace

std::string wholeDate(const DesktopState& state)
{
    return state.day + (state.day.empty() || state.date.empty() ? "" : " ") + state.date;
}

PegRect DesktopParts::label(int key) const
{
    return rectAt(labels.left, labels.top + key * labelHeight, widthOf(labels), labelHeight - labelGap);
}

DesktopParts desktopParts(const PegRect& area, int keys)
{
    const Sizes& sizes = sizesOf(area);
    const bool small = isSmall(area);
    const int barHeight = small ? 0 : 2 * sizes.line + 1;
    const int bodyWidth = widthOf(area) - sizes.labels;
    const auto line = [&](int top, int width, int height) {
        return rectAt(area.left + sizes.margin, area.top + top, width - 2 * sizes.margin, height);
    };
    const int barWidth = small ? bodyWidth : widthOf(area);
    const Cut first = cut(line(0, barWidth, sizes.line), sizes.time, Side::END, TEXT_GAP);
    const PegRect second = line(sizes.line, barWidth, sizes.line);
    const int lastTop = heightOf(area) - sizes.line - sizes.below;
    DesktopParts parts{};
    parts.time = first.part;
    parts.date = second;
    parts.extension = line(lastTop, bodyWidth, sizes.line);
    parts.mode = small ? second : first.rest;
    parts.icons = small ? first.rest : second;
    parts.logo = small ? parts.extension : line(barHeight, bodyWidth, lastTop - barHeight);
    parts.labels = rectAt(area.left + bodyWidth, area.top + barHeight, sizes.labels, heightOf(area) - barHeight);
    parts.labelGap = sizes.gap;
    parts.labelHeight = heightOf(parts.labels) / std::max(keys, 1);
    return parts;
}

void drawDesktop(PegPainter& painter, const PegRect& area, const DesktopState& state)
{
    const DesktopParts parts = desktopParts(area, static_cast<int>(state.keys.size()));
    painter.fill(area, Level::BARE);
    drawBar(painter, area, parts);
    drawTime(painter, parts.time, state);
    if (isSmall(area))
        drawOnSmallPanel(painter, parts, state);
    else
        drawOnFullPanel(painter, parts, state);
    drawLabels(painter, parts, state);
}

} // namespace host
