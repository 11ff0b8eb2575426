#include "host/widgets/telephony/LinesRow.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/Strip.h"
#include "host/widgets/list/ListLayout.h"

#include <utility>

namespace host {

namespace {

constexpr int ICON_WIDTH = 11;
constexpr int GAP = 3;

/// Draws the lines of one row.
class LinesPainter {
public:
    LinesPainter(PegPainter& painter, const KestrelListBoxItem::Place& place, const LinesLook& look)
        : mPainter(painter), mPlace(place), mLook(look)
    {
    }

    void draw()
    {
        int top = mPlace.text.top;
        for (const LinesLook::Line& line : mLook.lines) {
            const int height = mPlace.layout.rowHeight;
            const PegRect cell = rectAt(mPlace.text.left, top, widthOf(mPlace.text), height);
            if (!mPainter.isClippedOut(cell))
                drawLine(cell, line, &line == &mLook.lines.front());
            top += height;
        }
    }

private:
    void drawLine(const PegRect& cell, const LinesLook::Line& line, bool isFirst)
    {
        TextLook look = lookOf(line.bold ? mPlace.layout.titleFont : mPlace.layout.font, startAlign());
        look.dimmed = mLook.dimmed || line.dimmed;
        Strip strip(cell);
        if (isFirst)
            drawEnd(strip);
        strip.fromStart(line.indent);
        if (mLook.hasIcons) {
            const PegRect place = strip.fromStart(ICON_WIDTH);
            if (line.icon != nullptr)
                mPainter.icon(*line.icon, place, inkOf(look));
            strip.fromStart(GAP);
        }
        mPainter.text(strip.rest(), line.text, look);
    }

    void drawEnd(Strip& strip)
    {
        const Font font = mPlace.layout.font;
        if (!mLook.end.empty()) {
            const int width = mPainter.textWidth(mLook.end, font, widthOf(strip.rest()));
            TextLook look = lookOf(font, endAlign());
            look.runs = mLook.endRuns;
            mPainter.text(strip.fromEnd(width), mLook.end, look);
            strip.fromEnd(GAP);
        }
        for (auto mark = mLook.marks.rbegin(); mark != mLook.marks.rend(); ++mark) {
            mPainter.icon(**mark, strip.fromEnd((*mark)->width()), ink());
            strip.fromEnd(GAP);
        }
    }

    TextLook lookOf(Font font, Align align) const
    {
        return {.font = font, .align = align, .inverted = mPlace.inverted, .dimmed = mLook.dimmed};
    }

    Level ink() const { return inkOf(lookOf(mPlace.layout.font, startAlign())); }

    PegPainter& mPainter;
    const KestrelListBoxItem::Place& mPlace;
    const LinesLook& mLook;
};

PegRect firstLine(const PegRect& text, const KestrelListBox::Layout& layout)
{
    return rectAt(text.left, text.top, widthOf(text), layout.rowHeight);
}

/// On the panel that is running.
int panelWidthOf(const PegString& text, const KestrelListBox::Layout& layout)
{
    return text.empty() ? 0 : Lcd::current()->textWidth(layout.font, text);
}

} // namespace

int heightOf(const LinesLook& look, const KestrelListBox::Layout& layout)
{
    return static_cast<int>(look.lines.size()) * layout.rowHeight;
}

void draw(PegPainter& painter, const KestrelListBoxItem::Place& place, const LinesLook& look)
{
    LinesPainter(painter, place, look).draw();
}

KestrelListBoxItem::Description describe(std::string name, const LinesLook& look)
{
    KestrelListBoxItem::Description description{std::move(name), {}};
    const auto add = [&](const PegString& text) {
        if (!text.empty())
            description.texts.push_back(text);
    };
    for (const LinesLook::Line& line : look.lines) {
        add(line.text);
        if (&line == &look.lines.front())
            add(look.end);
    }
    return description;
}

void LinesRow::show(LinesLook look)
{
    PegString text = look.lines.front().text;
    show(std::move(look), std::move(text));
}

void LinesRow::show(LinesLook look, PegString text)
{
    if (look == mLook)
        return;
    const bool isHigher = look.lines.size() != mLook.lines.size();
    mLook = std::move(look);
    DataSet(std::move(text));
    if (isHigher)
        heightChanged();
    tellChanged();
}

void LinesRow::showEnd(PegString end)
{
    if (end == mLook.end)
        return;
    const PegString former = std::exchange(mLook.end, std::move(end));
    changed([&](const Layout& layout, const PegRect& text) {
        const int width = panelWidthOf(mLook.end, layout);
        return width == panelWidthOf(former, layout) ? Strip(firstLine(text, layout)).fromEnd(width) : text;
    });
}

} // namespace host
