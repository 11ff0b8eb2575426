#include "host/widgets/edit/EditPage.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"
#include "host/widgets/edit/EditRow.h"
#include "host/widgets/edit/Utf16.h"

#include <algorithm>

namespace host {

namespace {

constexpr int ARROWS_WIDTH = 8;
constexpr int PAGE_ARROW_HEIGHT = 8;

} // namespace

EditPage::Parts EditPage::partsOf(const PegRect& area) const
{
    Strip strip(rectAt(area.left + INSET, area.top, widthOf(area) - 2 * INSET, heightOf(area)));
    Parts parts;
    parts.arrows = strip.fromEnd(ARROWS_WIDTH);
    parts.mode = strip.fromEnd(showsMode() ? MODE_WIDTH : 0);
    parts.mode.bottom = static_cast<std::int16_t>(parts.mode.top + lineHeight() - 1);
    parts.text = strip.rest();
    return parts;
}

/// Room for the cursor behind the last character.
const PageLines& EditPage::linesIn(int width) const
{
    mLines.lay(edited().shown(), font(), width - EditRow::CARET_WIDTH);
    return mLines;
}

const PageLines& EditPage::lines() const
{
    return linesIn(widthOf(parts().text));
}

int EditPage::heightFor(int width) const
{
    const PegRect text = partsOf(rectAt(0, 0, width, lineHeight())).text;
    return static_cast<int>(linesIn(widthOf(text)).count()) * lineHeight();
}

bool EditPage::key(int key)
{
    if ((key == PK_UP || key == PK_DOWN) && !offersSymbols())
        return moveLines(key == PK_UP ? -1 : 1);
    return EditField::key(key);
}

EditRow EditPage::rowOf(const PageLines& all, std::size_t line) const
{
    return EditRow(all.textOf(line), font());
}

/// As the line sees it, which has it.
Caret EditPage::caretIn(const PageLines::Line& line) const
{
    const Caret& caret = edited().caret();
    return {caret.at - line.begin, caret.behind && caret.at > line.begin};
}

bool EditPage::moveLines(int by)
{
    endTimers();
    const PageLines& all = lines();
    const std::size_t from = all.lineOf(edited().cursor());
    const std::size_t to = from + static_cast<std::size_t>(by);
    if (to >= all.count())
        return false;
    if (mGoalCaret != edited().caret())
        mGoal = rowOf(all, from).distanceOf(caretIn(all[from]));
    const bool isLast = to + 1 == all.count();
    Caret there = rowOf(all, to).caretNear(mGoal, isLast || all.endsByItself(to));
    there.at += all[to].begin;
    edited().setCaret(there);
    mGoalCaret = there;
    Invalidate();
    return true;
}

std::optional<Caret> EditPage::caretBeside(bool right) const
{
    const PageLines& all = lines();
    const std::size_t line = all.lineOf(edited().cursor());
    const TextOrder order(all.textOf(line));
    const Caret inLine = caretIn(all[line]);
    const std::optional<Caret> there = right ? order.toTheRight(inLine) : order.toTheLeft(inLine);
    if (there)
        return Caret{there->at + all[line].begin, there->behind};
    return caretInNextLine(all, line, right != order.isFromTheRight());
}

/// Each line by itself.
bool EditPage::isReadFromTheRight() const
{
    return TextOrder(lines().textOf(lines().lineOf(edited().cursor()))).isFromTheRight();
}

/// Backwards over the space at which the line before has been broken, or over its end.
std::optional<Caret> EditPage::caretInNextLine(const PageLines& all, std::size_t line, bool forward)
{
    if (forward)
        return line + 1 < all.count() ? std::optional(Caret{all[line + 1].begin, false}) : std::nullopt;
    if (line == 0)
        return std::nullopt;
    const std::u16string_view before = all.textOf(line - 1);
    const std::size_t begin = all[line - 1].begin;
    if (all.endsByItself(line - 1))
        return Caret{begin + before.size(), !before.empty()};
    return Caret{begin + TextOrder(before).before(before.size()), false};
}

std::size_t EditPage::linesInSight() const
{
    return static_cast<std::size_t>(std::max(1, heightOf(Area()) / lineHeight()));
}

std::size_t EditPage::endOfSight(const PageLines& all) const
{
    return std::min(all.count(), mTop + linesInSight());
}

void EditPage::keepInSight(const PageLines& all)
{
    const std::size_t current = all.lineOf(edited().cursor());
    const std::size_t most = linesInSight();
    const std::size_t last = all.count() > most ? all.count() - most : 0;
    mTop = std::clamp(std::min(mTop, last), current < most ? 0 : current + 1 - most, current);
}

void EditPage::Draw(PegPainter& painter)
{
    fillGround(painter);
    const PageLines& all = lines();
    keepInSight(all);
    const PegRect text = parts().text;
    for (std::size_t line = mTop; line < endOfSight(all); ++line) {
        const int top = text.top + static_cast<int>(line - mTop) * lineHeight();
        drawLine(painter, all, line, rectAt(text.left, top, widthOf(text), std::min(lineHeight(), heightOf(text))));
    }
    drawMode(painter, parts().mode);
    drawArrows(painter, endOfSight(all) < all.count());
}

/// Whole: the space at which it ends may have no room. The symbols stand in the place of the cursor's line.
void EditPage::drawLine(PegPainter& painter, const PageLines& all, std::size_t line, const PegRect& cell) const
{
    const bool isCurrent = line == all.lineOf(edited().cursor());
    if (isCurrent && symbols().isOpen()) {
        symbols().draw(painter, rectAt(Area().left, cell.top, widthOf(Area()), heightOf(cell)), font());
        return;
    }
    const EditRow row = rowOf(all, line);
    if (edited().text().empty())
        drawHint(painter, cell);
    else
        painter.scrolledText(cell, toPegString(row.text()), look(), 0, widthOf(cell));
    if (isCurrent)
        drawCursor(painter, row, cell, caretIn(all[line]), 0);
}

void EditPage::drawArrows(PegPainter& painter, bool hasMoreBelow) const
{
    const PegRect arrows = parts().arrows;
    if (mTop > 0)
        painter.icon(icons::SMALL_ARROW_UP, rectAt(arrows.left, arrows.top, ARROWS_WIDTH, PAGE_ARROW_HEIGHT), ink());
    if (hasMoreBelow)
        painter.icon(icons::SMALL_ARROW_DOWN,
                     rectAt(arrows.left, arrows.bottom + 1 - PAGE_ARROW_HEIGHT, ARROWS_WIDTH, PAGE_ARROW_HEIGHT),
                     ink());
}

std::size_t EditPage::topLine()
{
    keepInSight(lines());
    return mTop;
}

std::vector<PegString> EditPage::linesShown()
{
    const PageLines& all = lines();
    keepInSight(all);
    std::vector<PegString> shown;
    for (std::size_t line = mTop; line < endOfSight(all); ++line)
        shown.push_back(toPegString(all.textOf(line)));
    return shown;
}

} // namespace host
