#include "host/widgets/popup/PopupBox.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Column.h"
#include "host/widgets/Strip.h"
#include "host/widgets/popup/PopupFrame.h"

#include <algorithm>

namespace host {

namespace {

constexpr int INDENT = 8; ///< of the box, from the panel's edges
constexpr int MARGIN = 4; ///< of the parts, from the frame
constexpr int RULE = 2;   ///< between the parts
constexpr int ICON_WIDTH = 14;
constexpr int MARK_WIDTH = 10;

void drawLine(PegPainter& painter, const PegRect& area, const PopupBox::Line& line, Font font)
{
    Strip strip(area);
    const PegRect front = strip.fromStart(line.icon != nullptr ? ICON_WIDTH : 0);
    const PegRect behind = strip.fromEnd(line.mark != nullptr ? MARK_WIDTH : 0);
    if (line.icon != nullptr)
        painter.icon(*line.icon, front, Level::DARK);
    if (line.mark != nullptr)
        painter.icon(*line.mark, behind, Level::DARK);
    painter.text(strip.rest(), line.text, {.font = font, .align = startAlign()});
}

} // namespace

PopupBox::PopupBox() : PegWindow(FF_NONE), mBar(new CommandBar)
{
    Add(mBar, false);
    mBar->setFocus(true);
    layOut();
}

void PopupBox::setHeader(Line line)
{
    mHeader = std::move(line);
    layOut();
}

void PopupBox::setBody(std::vector<Line> lines)
{
    mBody = std::move(lines);
    layOut();
}

void PopupBox::setField(Field* field)
{
    delete mField;
    mField = field;
    mBar->setFocus(field == nullptr || !field->takesFocus());
    if (field != nullptr) {
        Add(field, false);
        field->setFocus(field->takesFocus());
    }
    layOut();
}

int PopupBox::roomForField(int height)
{
    return hasTwoLines() ? height : height - 2 * (INDENT + FRAME_WIDTH + MARGIN);
}

void PopupBox::setFreeAbove(int height)
{
    mFreeAbove = height;
    layOut();
}

void PopupBox::setStatusLines(int lines)
{
    mLinesAbove = lines;
    mStatus.strip().setLines(hasTwoLines() ? 0 : lines);
    layOut();
}

void PopupBox::setStatusText(int line, std::string text)
{
    mStatus.strip().setText(line, std::move(text));
}

void PopupBox::VisibilityChanged()
{
    mStatus.show(StatusIs(PSF_VISIBLE));
}

void PopupBox::setCommands(std::vector<PegString> texts)
{
    mBar->setCommands(std::move(texts));
    layOut();
}

void PopupBox::setMessageTarget(PegThing* target)
{
    mTarget = target;
    mBar->setMessageTarget(target);
}

int PopupBox::Message(const PegMessage& message)
{
    if (message.wType == PM_KEYRELEASE && mField != nullptr)
        mField->released(message.iData);
    if (message.wType != PM_KEY)
        return PegWindow::Message(message);
    mKeyHeard();
    if (mField != nullptr && mField->takesFocus() && mField->key(message.iData))
        return 0;
    if (mBar->key(message.iData))
        return 0;
    return mTarget != nullptr ? mTarget->Message(message) : 0;
}

/// The bar, the field and the header get room first, in this order: without them a popup could not be answered.
PopupBox::Parts PopupBox::parts() const
{
    const auto [width, panelHeight] = runningPanel();
    const int above = mFreeAbove + mLinesAbove * Field::lineHeight();
    const int height = panelHeight - above;
    const bool framed = !hasTwoLines();
    const int line = Field::lineHeight();
    const int inner = framed ? width - 2 * (INDENT + FRAME_WIDTH + MARGIN) : width;
    const int header = mHeader.isEmpty() ? 0 : line + (framed ? RULE : 0);
    const int bar = mBar->count() == 0 ? 0 : line + (framed ? RULE : 0);
    const int field = mField == nullptr ? 0 : mField->heightFor(inner);
    const int wanted = header + bar + field + line * static_cast<int>(mBody.size());
    const int edge = framed ? FRAME_WIDTH + MARGIN : 0;
    const int most = height - (framed ? 2 * INDENT : 0);
    const int total = framed ? std::min(wanted + 2 * edge, most) : height;

    Parts parts;
    parts.box = rectAt((width - inner) / 2 - edge, above + (height - total) / 2, inner + 2 * edge, total);
    Column column(rectAt(parts.box.left + edge, parts.box.top + edge, inner, total - 2 * edge));
    parts.bar = column.fromBottom(bar);
    parts.field = column.fromBottom(field);
    parts.header = column.fromTop(header);
    for (std::size_t i = 0; i < mBody.size(); ++i)
        parts.lines.push_back(column.fromTop(line));
    return parts;
}

void PopupBox::layOut()
{
    Invalidate();
    const Parts where = parts();
    Resize(where.box);
    mBar->Resize(isEmpty(where.bar) ? where.bar
                                    : rectAt(where.bar.left, where.bar.bottom + 1 - Field::lineHeight(),
                                             widthOf(where.bar), Field::lineHeight()));
    if (mField != nullptr)
        mField->Resize(where.field);
    Invalidate();
}

void PopupBox::Draw(PegPainter& painter)
{
    const Parts where = parts();
    if (hasTwoLines())
        painter.fill(where.box, Level::BARE);
    else
        drawPopupFrame(painter, where.box);
    if (!isEmpty(where.header)) {
        drawLine(painter, where.header, mHeader, Field::boldFont());
        if (!hasTwoLines())
            painter.fill(rectAt(where.header.left, where.header.bottom, widthOf(where.header), 1), Level::MIDDLE);
    }
    for (std::size_t i = 0; i < mBody.size(); ++i)
        if (!isEmpty(where.lines[i]))
            drawLine(painter, where.lines[i], mBody[i], Field::font());
}

} // namespace host
