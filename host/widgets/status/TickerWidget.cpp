#include "widgets/TickerWidget.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "host/lcd/Motion.h"
#include "host/lcd/Painter.h"
#include "host/widgets/Reading.h"
#include "host/widgets/popup/PopupFrame.h"

#include <algorithm>
#include <utility>

using namespace host;

namespace {

constexpr int TIMER = 1;
constexpr int REST_MS = 1500;
constexpr int STEP_MS = 40;
constexpr int STEP_WIDTH = 2;
constexpr int PAGE_MS = 4000;

struct Look {
    Font font;
    int margin;
    int gap; ///< between the end of the text and its beginning
};

const Look& look()
{
    static constexpr Look GRAPHIC{Font::TEXT, 6, 40};
    static constexpr Look TWO_LINES{Font::FIXED, 0, 32};
    return hasTwoLines() ? TWO_LINES : GRAPHIC;
}

PegRect textArea(const PegRect& area)
{
    return rectAt(area.left + look().margin, area.top, widthOf(area) - 2 * look().margin, heightOf(area));
}

} // namespace

TickerWidget::TickerWidget(PegString text) : mText(std::move(text))
{
    Type(TYPE_TICKER);
}

int TickerWidget::Message(const PegMessage& message)
{
    if (message.wType != PM_TIMER)
        return PegThing::Message(message);
    step();
    return 0;
}

void TickerWidget::Draw(PegPainter& painter)
{
    painter.fill(Area(), Level::BARE);
    const TextLook text{.font = look().font, .align = startAlign(), .runs = true};
    if (fits())
        painter.text(textArea(Area()), mText, text);
    else
        painter.scrolledText(textArea(Area()), mText, text, mOffset, look().gap);
}

void TickerWidget::Resize(const PegRect& area)
{
    if (area == Area())
        return;
    PegThing::Resize(area);
    beginAnew();
}

void TickerWidget::setText(PegString text)
{
    mText = std::move(text);
    beginAnew();
}

const PegString& TickerWidget::getText() const
{
    return mText;
}

void TickerWidget::VisibilityChanged()
{
    beginAnew();
}

bool TickerWidget::fits() const
{
    return mTextWidth <= widthOf(textArea(Area()));
}

/// Whether a thing that stands higher hides all of it.
bool TickerWidget::isCovered() const
{
    for (const PegThing* thing = this; thing != nullptr; thing = thing->Parent())
        for (const PegThing* above = thing->NextSibling(); above != nullptr; above = above->NextSibling())
            if (contains(above->Area(), Area()))
                return true;
    return false;
}

/// With the beginning of the text at the edge, and without a timer unless it has somewhere to go.
void TickerWidget::beginAnew()
{
    KillTimer(TIMER);
    mOffset = 0;
    if (!StatusIs(PSF_VISIBLE) || Lcd::current() == nullptr)
        return;
    mTextWidth = Lcd::current()->textWidth(look().font, mText);
    Invalidate();
    if (!fits())
        SetTimer(TIMER, timeHere(), false);
}

/// While it is covered it looks now and then whether it has come to light again.
void TickerWidget::step()
{
    const int before = std::exchange(mOffset, isCovered() ? 0 : nextOffset());
    SetTimer(TIMER, timeHere(), false);
    if (mOffset != before)
        Invalidate();
}

/// Of a page that is turned, the last quarter is the first of the next one: who reads finds the word again.
int TickerWidget::nextOffset() const
{
    const int room = widthOf(textArea(Area()));
    const bool turns = Motion::isReduced();
    const int end = turns ? mTextWidth - room : mTextWidth + look().gap - STEP_WIDTH;
    if (mOffset >= end)
        return 0;
    return mOffset + (turns ? std::max(room * 3 / 4, STEP_WIDTH) : STEP_WIDTH);
}

int TickerWidget::timeHere() const
{
    if (Motion::isReduced())
        return PAGE_MS;
    return mOffset == 0 ? REST_MS : STEP_MS;
}
