#include "widgets/LineOverviewListItem.h"

#include "host/lcd/Motion.h"
#include "host/widgets/popup/PopupFrame.h"
#include "host/widgets/telephony/LinesRow.h"
#include "widgets/KestrelPegTimer.h"

#include <array>
#include <utility>
#include <vector>

using namespace host;

namespace {

constexpr int BLINK_MS = 500;

/// By sign.
constexpr std::array SIGN_ICONS{static_cast<const Icon*>(nullptr),
                                &icons::ON_HOOK,
                                &icons::CALL_OUT,
                                &icons::CALL_IN,
                                &icons::HANDSET,
                                &icons::HOLD,
                                &icons::HELD_BY_OTHER,
                                &icons::CONFERENCE,
                                &icons::FORWARDED,
                                &icons::LETTER,
                                &icons::BELL_OFF,
                                &icons::NO_ENTRY,
                                &icons::FAILURE};

/// One word behind the other; without a space where one is empty.
PegString joined(const PegString& first, const PegString& second)
{
    if (first.empty() || second.empty())
        return first.empty() ? second : first;
    std::vector<PegChar> both(first.data(), first.data() + first.length());
    both.push_back(' ');
    both.insert(both.end(), second.data(), second.data() + second.length());
    return {both.data(), both.size()};
}

} // namespace

/// What the row has been told, and what blinks.
struct LineOverviewListItem::Impl final : KestrelTimerObserver {
    explicit Impl(LineOverviewListItem& item) : row(item) { blink.setObserver(this); }

    int Message(const PegMessage& message) override;
    const Icon* icon() const;
    LinesLook look() const;

    /// Sets what is different, and paints the row again. Returns whether it is.
    template <typename Value>
    bool set(Value& variable, Value value);

    LineOverviewListItem& row;
    PegString prefix;
    PegString identity;
    Sign sign = NO_SIGN;
    bool isHD = false;
    bool isDimmed = false;
    bool isHighlighted = false;
    bool isLit = false;    ///< while it is highlighted
    bool isToTell = false; ///< something has changed since it was told last
    KestrelPegTimer blink;
};

/// Nobody is told: it goes on by itself.
int LineOverviewListItem::Impl::Message(const PegMessage&)
{
    isLit = !isLit || Motion::isReduced();
    row.changed();
    return 0;
}

const Icon* LineOverviewListItem::Impl::icon() const
{
    if (isHighlighted)
        return isLit ? &icons::HOLD : nullptr;
    return SIGN_ICONS.at(static_cast<std::size_t>(sign));
}

/// On two lines the identity stands at the end of the first, so that two of the rows are in view.
LinesLook LineOverviewListItem::Impl::look() const
{
    LinesLook look;
    look.lines.front() = {.text = joined(prefix, row.DataGet()), .icon = icon(), .bold = isHighlighted};
    if (isHD)
        look.marks = {&icons::HD};
    if (hasTwoLines())
        look.end = identity;
    else if (!identity.empty())
        look.lines.push_back({.text = identity});
    look.dimmed = isDimmed;
    return look;
}

template <typename Value>
bool LineOverviewListItem::Impl::set(Value& variable, Value value)
{
    if (variable == value)
        return false;
    variable = std::move(value);
    isToTell = true;
    row.changed();
    return true;
}

LineOverviewListItem::LineOverviewListItem() : KestrelListBoxItem(PegString()), mImpl(std::make_unique<Impl>(*this)) {}

LineOverviewListItem::~LineOverviewListItem() = default;

void LineOverviewListItem::setName(PegString name)
{
    if (name == DataGet())
        return;
    mImpl->isToTell = true;
    DataSet(std::move(name));
}

void LineOverviewListItem::setNamePrefix(PegString prefix)
{
    mImpl->set(mImpl->prefix, std::move(prefix));
}

void LineOverviewListItem::setIdentity(PegString identity)
{
    const bool isAsHigh = identity.empty() == mImpl->identity.empty();
    if (mImpl->set(mImpl->identity, std::move(identity)) && !isAsHigh)
        heightChanged();
}

void LineOverviewListItem::setSign(Sign sign)
{
    mImpl->set(mImpl->sign, sign);
}

void LineOverviewListItem::setHDIcon(bool on)
{
    mImpl->set(mImpl->isHD, on);
}

void LineOverviewListItem::setDimmed(bool on)
{
    mImpl->set(mImpl->isDimmed, on);
}

void LineOverviewListItem::setHighlighted(bool on)
{
    if (on == mImpl->isHighlighted)
        return;
    mImpl->isLit = on;
    mImpl->set(mImpl->isHighlighted, on);
    on ? mImpl->blink.start(BLINK_MS) : mImpl->blink.stop();
}

void LineOverviewListItem::tell()
{
    if (std::exchange(mImpl->isToTell, false))
        tellChanged();
}

LineOverviewListItem::Sign LineOverviewListItem::sign() const
{
    return mImpl->sign;
}

bool LineOverviewListItem::isDimmed() const
{
    return mImpl->isDimmed;
}

bool LineOverviewListItem::isHighlighted() const
{
    return mImpl->isHighlighted;
}

int LineOverviewListItem::heightIn(const Layout& layout) const
{
    return host::heightOf(mImpl->look(), layout);
}

void LineOverviewListItem::Draw(PegPainter& painter, const Place& place) const
{
    host::draw(painter, place, mImpl->look());
}

LineOverviewListItem::Description LineOverviewListItem::describe() const
{
    return host::describe("LineOverviewListItem", mImpl->look());
}
