#include "host/widgets/status/SystemWindowLook.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"
#include "host/widgets/popup/PopupFrame.h"
#include "utilities/ICC.h"

#include <algorithm>

namespace host {

namespace {

// The graphic panels.
constexpr int LINE_HEIGHT = 16;
constexpr int MARGIN = 6;
constexpr int CAPTION_HEIGHT = 20;
constexpr int TEXT_HEIGHT = 22;
constexpr int LEAST_INDENT = 4; ///< of a popup, on either side
constexpr int POPUP_WIDTH = 208;
constexpr int POPUP_MARGIN = 4;

// The panel of two lines, where the window stands as a list does.
constexpr int TITLE_RULE = 2;
constexpr int GUTTER = 9;
constexpr int LINE_WIDTH = 192;

constexpr int POPUP_LINES = 2;

bool isFramed(const SystemWindowState& state)
{
    return state.popup && !hasTwoLines();
}

PegRect popupArea(const SystemWindowState& state)
{
    const int width = std::min(POPUP_WIDTH, runningPanel().width - 2 * LEAST_INDENT);
    const int height = state.lines > 1 ? CAPTION_HEIGHT + TEXT_HEIGHT : TEXT_HEIGHT;
    return rectAt((runningPanel().width - width) / 2, state.top, width, height + 2 * FRAME_WIDTH);
}

PegRect linesArea(const SystemWindowState& state)
{
    if (hasTwoLines())
        return rectAt(0, state.top, runningPanel().width, std::min(state.lines, POPUP_LINES) * BIG_LINE_HEIGHT);
    return rectAt(0, state.top, runningPanel().width, state.lines * LINE_HEIGHT + (state.separator ? 1 : 0));
}

void drawRule(PegPainter& painter, const PegRect& area, int y)
{
    painter.fill(rectAt(area.left, y, widthOf(area), 1), Level::DARK);
}

/// Two lines are a caption and a text, one is a text.
void drawPopup(PegPainter& painter, const PegRect& area, const SystemWindowState& state, const StatusLines& lines)
{
    const PegRect inside = drawPopupFrame(painter, area);
    const auto cell = [&](int top, int height) {
        return rectAt(inside.left + POPUP_MARGIN, inside.top + top, widthOf(inside) - 2 * POPUP_MARGIN, height);
    };
    const auto draw = [&](const PegRect& place, int line, Font font) {
        painter.text(place, ICC::fromUTF8toUNICODE(lines.text(line)), {.font = font, .align = Align::CENTRE});
    };
    if (state.lines < POPUP_LINES)
        return draw(cell(0, TEXT_HEIGHT), 0, Font::TEXT_BOLD);
    painter.fill(rectAt(inside.left, inside.top, widthOf(inside), CAPTION_HEIGHT - 1), Level::LIGHT);
    drawRule(painter, inside, inside.top + CAPTION_HEIGHT - 1);
    draw(cell(0, CAPTION_HEIGHT - 1), 0, Font::TEXT_BOLD);
    draw(cell(CAPTION_HEIGHT, TEXT_HEIGHT), 1, Font::TEXT);
}

/// Changes sides with the language, as in a list.
PegRect twoLinesCell(const PegRect& area, int top, int height)
{
    const int indent = isReadFromTheRight() ? widthOf(area) - GUTTER - LINE_WIDTH : GUTTER;
    return rectAt(area.left + indent, area.top + top, LINE_WIDTH, height);
}

void drawTwoLines(PegPainter& painter, const PegRect& area, const StatusLines& lines, const StatusTime& time)
{
    const int textHeight = BIG_LINE_HEIGHT - TITLE_RULE;
    painter.fill(rectAt(area.left, area.top, widthOf(area), textHeight), Level::LIGHT);
    drawRule(painter, area, area.top + textHeight);
    drawStatusLine(painter, twoLinesCell(area, 0, textHeight), lines.text(0), Font::FIXED_BOLD, &time);
    drawStatusLine(painter, twoLinesCell(area, BIG_LINE_HEIGHT, BIG_LINE_HEIGHT), lines.text(1), Font::FIXED, nullptr);
}

/// The separator stands where the screen goes on.
void drawLines(PegPainter& painter, const PegRect& area, const SystemWindowState& state, const StatusLines& lines,
               const StatusTime& time)
{
    const bool above = state.separator && state.top > 0;
    if (state.separator)
        drawRule(painter, area, above ? area.top : area.bottom);
    for (int line = 0; line < state.lines; ++line) {
        const int top = area.top + (above ? 1 : 0) + line * LINE_HEIGHT;
        drawStatusLine(painter, rectAt(area.left + MARGIN, top, widthOf(area) - 2 * MARGIN, LINE_HEIGHT),
                       lines.text(line), Font::TEXT, line == 0 ? &time : nullptr);
    }
}

} // namespace

PegRect systemWindowArea(const SystemWindowState& state)
{
    if (state.lines == 0)
        return rectAt(0, state.top, runningPanel().width, 0);
    return isFramed(state) ? popupArea(state) : linesArea(state);
}

bool showsTime(const SystemWindowState& state)
{
    return state.lines > 0 && !isFramed(state);
}

void drawSystemWindow(PegPainter& painter, const PegRect& area, const SystemWindowState& state,
                      const StatusLines& lines, const StatusTime& time)
{
    painter.fill(area, Level::BARE);
    if (isFramed(state))
        drawPopup(painter, area, state, lines);
    else if (hasTwoLines())
        drawTwoLines(painter, area, lines, time);
    else
        drawLines(painter, area, state, lines, time);
}

} // namespace host
