#include "widgets/StatusMessage.h"

#include "host/lcd/Geometry.h"
#include "host/widgets/Reading.h"
#include "host/widgets/popup/PopupFrame.h"
#include "utilities/ICC.h"
#include "widgets/ApplicationWatch.h"

#include <algorithm>
#include <limits>

using namespace host;

namespace {

constexpr std::int32_t TIME_OUT = 1;
constexpr int HEIGHT = 36; ///< two rows of a list: none shows in part
constexpr int INDENT = 2;  ///< of the frame, from the edges
constexpr int GAP = 3;
constexpr int MARGIN = 6;

/// At the bottom; on two lines the second one.
PegRect place()
{
    const auto [width, height] = runningPanel();
    if (hasTwoLines())
        return rectAt(0, BIG_LINE_HEIGHT, width, BIG_LINE_HEIGHT);
    return rectAt(0, height - HEIGHT, width, HEIGHT);
}

PegRect drawBox(PegPainter& painter, const PegRect& area)
{
    painter.fill(area, Level::BARE);
    if (!hasTwoLines())
        return drawPopupFrame(
            painter, rectAt(area.left + INDENT, area.top + GAP, widthOf(area) - 2 * INDENT, heightOf(area) - 2 * GAP));
    painter.frame(area, Level::DARK);
    return rectAt(area.left + 1, area.top + 1, widthOf(area) - 2, heightOf(area) - 2);
}

} // namespace

struct StatusMessage::Impl {
    std::string text;
    ApplicationWatch application;
};

StatusMessage::StatusMessage(const std::string& text, unsigned int timeout)
    : PegWindow(FF_NONE | FF_BEHIND), mImpl(new Impl{text, ApplicationWatch(*this)})
{
    Type(TYPE_STATUS_MESSAGE);
    Resize(place());
    constexpr unsigned int LONGEST = std::numeric_limits<int>::max();
    if (timeout > 0)
        SetTimer(TIME_OUT, static_cast<int>(std::min(timeout, LONGEST)), false);
}

StatusMessage::~StatusMessage() = default;

int StatusMessage::Message(const PegMessage& message)
{
    if (message.wType == PM_APPLICATION_CHANGED)
        Invalidate();
    if (message.wType != PM_TIMER)
        return PegWindow::Message(message);
    if (Parent() != nullptr)
        Parent()->Remove(this);
    Resize(rectAt(Area().left, Area().top, 0, 0));
    return 0;
}

void StatusMessage::Draw(PegPainter& painter)
{
    if (isEmpty(Area()))
        return;
    const PegRect inside = drawBox(painter, Area());
    const Font font = hasTwoLines() ? Font::FIXED : Font::TEXT;
    const PegRect cell = rectAt(inside.left + MARGIN, inside.top, widthOf(inside) - 2 * MARGIN, heightOf(inside));
    painter.text(cell, ICC::fromUTF8toUNICODE(mImpl->text), {.font = font, .align = startAlign()});
}

const std::string& StatusMessage::text() const
{
    return mImpl->text;
}
