#include "host/widgets/idle/IdleLayout.h"

#include "host/widgets/Column.h"
#include "host/widgets/Strip.h"
#include "host/widgets/form/Field.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <string>
#include <utility>

namespace host {

namespace {

constexpr int RULE = 2;
constexpr int BAR_HEIGHT = 20; ///< on the graphic panels
constexpr int LINE_HEIGHT = 16;
constexpr int MARGIN = 6;
constexpr int GAP = 6;
constexpr int LOGO_EDGE = 4; ///< above and below
constexpr int LEAST_LOGO = 16;
constexpr int LEAST_WIDTH_FOR_ONE_ROW = 240;

bool isTold(const PegString& text)
{
    return ICC::fromUNICODEtoUTF8(text).find_first_not_of(' ') != std::string::npos;
}

/// In the fonts of the graphic panels.
int advanceOf(PegChar character, bool isBold)
{
    if (character == '.' || character == ':' || character == ' ')
        return 5;
    const bool isDigit = character >= '0' && character <= '9';
    return (isDigit ? 8 : 11) + (isBold ? 1 : 0);
}

/// Room for a number, a time or a date.
int widthFor(const PegString& text, bool isBold)
{
    constexpr int SPARE = 2;
    constexpr int FIXED_WIDTH = 8;
    int width = SPARE;
    for (std::size_t i = 0; i < text.length(); ++i)
        width += hasTwoLines() ? FIXED_WIDTH : advanceOf(text.data()[i], isBold);
    return width;
}

/// Where the name stands below date and time.
bool isStacked(const PegRect& area)
{
    return !hasTwoLines() && widthOf(area) < LEAST_WIDTH_FOR_ONE_ROW;
}

/// Puts the parts of one state into their places.
class Layout {
public:
    Layout(const PegRect& area, const IdleState& state) : mArea(area), mState(state) {}

    std::vector<IdlePart> parts()
    {
        placeBar();
        if (hasTwoLines())
            placeSecondLine();
        else
            placeBelowBar();
        return std::move(mParts);
    }

private:
    const IdleContents& contents() const { return mState.contents; }

    static TextLook plain(Align align) { return {.font = Field::font(), .align = align}; }
    static TextLook bold(Align align) { return {.font = Field::boldFont(), .align = align}; }

    void add(IdleKind kind, const PegRect& area, PegString text, const Icon* icon, TextLook look)
    {
        if (!isEmpty(area))
            mParts.push_back({.kind = kind, .area = area, .text = std::move(text), .icon = icon, .look = look});
    }

    void addLogo(const PegRect& area, const Picture& picture)
    {
        mParts.push_back({.kind = IdleKind::LOGO, .area = area, .picture = &picture});
    }

    void placeBar()
    {
        const PegRect bar = idleBar(mArea);
        const int margin = hasTwoLines() ? 0 : MARGIN;
        Column rows(rectAt(bar.left + margin, bar.top, widthOf(bar) - 2 * margin, heightOf(bar) - RULE));
        const PegRect below = isStacked(mArea) ? rows.fromBottom(LINE_HEIGHT) : rows.rest();
        Strip strip(rows.rest());
        const PegRect time = strip.fromEnd(widthFor(mState.time, true));
        strip.fromEnd(GAP);
        const PegRect date = isStacked(mArea) ? strip.rest() : strip.fromEnd(widthFor(mState.date, false));
        strip.fromEnd(GAP);
        placeName(isStacked(mArea) ? below : strip.rest());
        addRunning(IdleKind::DATE, date, mState.date, plain(isStacked(mArea) ? startAlign() : endAlign()));
        addRunning(IdleKind::TIME, time, mState.time, bold(endAlign()));
    }

    /// A caption that the application has set stands in the place of the telephone's name.
    void placeName(const PegRect& area)
    {
        Strip strip(area);
        if (contents().hasMobileUser)
            add(IdleKind::MOBILE_USER, strip.fromStart(IDLE_ICON_WIDTH), {}, &icons::PERSON, {});
        const PegString caption = mState.lines.used() > 0 ? statusLine(0) : PegString();
        const PegString& name = isTold(caption) ? caption : contents().name;
        if (!name.empty())
            add(IdleKind::NAME, strip.rest(), name, nullptr, bold(startAlign()));
    }

    void addRunning(IdleKind kind, const PegRect& area, const PegString& text, TextLook look)
    {
        look.runs = true;
        if (!text.empty())
            add(kind, area, text, nullptr, look);
    }

    PegString statusLine(int line) const { return ICC::fromUTF8toUNICODE(mState.lines.text(line)); }

    void placeBelowBar()
    {
        const PegRect bar = idleBar(mArea);
        Column column(
            rectAt(mArea.left + MARGIN, bar.bottom + 1, widthOf(mArea) - 2 * MARGIN, mArea.bottom - bar.bottom));
        for (int line = 1; line < mState.lines.used(); ++line)
            add(IdleKind::STATUS_LINE, column.fromTop(LINE_HEIGHT), statusLine(line), nullptr, plain(startAlign()));
        if (idleTurns(mState) > 0)
            placeTurn(column.fromBottom(LINE_HEIGHT));
        placeForwardingAndCounters(column);
        placeLogo(column);
    }

    /// What waits stands at the end of the last line.
    void placeForwardingAndCounters(Column& column)
    {
        bool isLast = contents().messages > 0 || contents().missedCalls > 0;
        for (const auto& [kind, forwarding] : {forwardings()[1], forwardings()[0]}) {
            if (!forwarding->isShown())
                continue;
            Strip strip(column.fromBottom(LINE_HEIGHT));
            if (std::exchange(isLast, false))
                placeCounters(strip);
            addForwarding(kind, strip.rest(), *forwarding);
        }
        if (!isLast)
            return;
        Strip strip(column.fromBottom(LINE_HEIGHT));
        placeCounters(strip);
    }

    void placeCounters(Strip& strip)
    {
        placeCounter(IdleKind::MISSED_CALLS, contents().missedCalls, icons::MISSED_CALL, strip);
        placeCounter(IdleKind::MESSAGES, contents().messages, icons::LETTER, strip);
    }

    void placeCounter(IdleKind kind, int count, const Icon& icon, Strip& strip)
    {
        if (count <= 0)
            return;
        const PegString digits = ICC::fromUTF8toUNICODE(std::to_string(count));
        add(kind, strip.fromEnd(IDLE_ICON_WIDTH + widthFor(digits, true)), digits, &icon, bold(startAlign()));
        strip.fromEnd(GAP);
    }

    void addForwarding(IdleKind kind, const PegRect& area, const IdleForwarding& forwarding)
    {
        const Icon& arrow = kind == IdleKind::FORWARDING ? icons::FORWARDED : icons::SERVER_FORWARDED;
        add(kind, area, forwarding.address, forwarding.hasArrow ? &arrow : nullptr, plain(startAlign()));
    }

    /// The picture with the text below it, in the middle of what is left.
    void placeLogo(Column& column)
    {
        const bool isBranded = !contents().branding.empty();
        const PegRect& rest = column.rest();
        const int text = isBranded && heightOf(rest) >= LINE_HEIGHT ? LINE_HEIGHT : 0;
        const int room = heightOf(rest) - text - 2 * LOGO_EDGE;
        const Picture* const logo = room >= LEAST_LOGO ? &mState.logo.in(widthOf(rest), room) : nullptr;
        const int height = logo != nullptr ? logo->height : 0;
        const int top = rest.top + (heightOf(rest) - height - text) / 2;
        if (height > 0)
            addLogo(rectAt(rest.left, top, widthOf(rest), height), *logo);
        if (text > 0)
            add(IdleKind::BRANDING, rectAt(rest.left, top + height, widthOf(rest), text), contents().branding, nullptr,
                bold(Align::CENTRE));
    }

    void placeTurn(const PegRect& area)
    {
        std::size_t turn = mState.turn % idleTurns(mState);
        if (hasTwoLines())
            for (const auto& [kind, forwarding] : forwardings())
                if (forwarding->isShown() && turn-- == 0)
                    return addForwarding(kind, area, *forwarding);
        add(IdleKind::SYSTEM_MESSAGE, area, mState.systemMessages[turn], nullptr, plain(startAlign()));
    }

    std::array<std::pair<IdleKind, const IdleForwarding*>, 2> forwardings() const
    {
        return {std::pair(IdleKind::FORWARDING, &contents().forwarding),
                std::pair(IdleKind::SERVER_FORWARDING, &contents().serverForwarding)};
    }

    /// What waits stands at its end. What there is to say stands before it, or else whose telephone it is.
    void placeSecondLine()
    {
        const PegRect bar = idleBar(mArea);
        Strip strip(rectAt(bar.left, bar.bottom + 1, widthOf(bar), mArea.bottom - bar.bottom));
        placeCounters(strip);
        if (idleTurns(mState) > 0)
            return placeTurn(strip.rest());
        const Picture& logo = mState.logo.in(widthOf(strip.rest()) / 2, heightOf(strip.rest()));
        if (logo.width > 0) {
            addLogo(strip.fromStart(logo.width), logo);
            strip.fromStart(GAP);
        }
        if (!contents().branding.empty())
            add(IdleKind::BRANDING, strip.rest(), contents().branding, nullptr, plain(startAlign()));
    }

    const PegRect mArea;
    const IdleState& mState;
    std::vector<IdlePart> mParts;
};

} // namespace

std::vector<IdlePart> idleParts(const PegRect& area, const IdleState& state)
{
    return Layout(area, state).parts();
}

/// On two lines the addresses take turns with the messages.
std::size_t idleTurns(const IdleState& state)
{
    std::size_t turns = state.systemMessages.size();
    if (hasTwoLines())
        turns +=
            (state.contents.forwarding.isShown() ? 1U : 0U) + (state.contents.serverForwarding.isShown() ? 1U : 0U);
    return turns;
}

PegRect idleBar(const PegRect& area)
{
    constexpr int GUTTER = 8;
    if (hasTwoLines())
        return rectAt(area.left + GUTTER, area.top, widthOf(area) - 2 * GUTTER, BIG_LINE_HEIGHT);
    return rectAt(area.left, area.top, widthOf(area), BAR_HEIGHT + (isStacked(area) ? LINE_HEIGHT : 0));
}

} // namespace host
