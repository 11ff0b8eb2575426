#include "LineOverviewItemPrivate.h"

#include "utilities/ICC.h"

#include <array>
#include <utility>

namespace DisplayAPI {

namespace {

/// By state.
constexpr std::array SIGNS{
    LineOverviewListItem::FREE,        LineOverviewListItem::DIALS,     LineOverviewListItem::RINGS,
    LineOverviewListItem::TALKS,       LineOverviewListItem::HOLDS,     LineOverviewListItem::IS_HELD,
    LineOverviewListItem::CONFERS,     LineOverviewListItem::FORWARDS,  LineOverviewListItem::HAS_LETTER,
    LineOverviewListItem::KEEPS_QUIET, LineOverviewListItem::IS_BARRED, LineOverviewListItem::HAS_FAILED};

} // namespace

LineOverviewItemPrivate::LineOverviewItemPrivate(LineOverviewItem::LineState state, std::string name,
                                                 std::string identity, TranslationInfo* namePrefix)
    : mName(std::move(name)), mIdentity(std::move(identity)), mNamePrefix(namePrefix), mState(state)
{
    mHoldTimer.setSingleShot(true);
    mHoldTimer.setObserver(this);
    refreshItem();
}

int LineOverviewItemPrivate::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_TIMER: endHold(); break;
    case PM_APPLICATION_CHANGED:
        localeChanged(ICC::fromUNICODEtoASCII(*static_cast<const PegString*>(message.pData)));
        break;
    default: break;
    }
    return 0;
}

void LineOverviewItemPrivate::localeChanged(std::string)
{
    refreshItem();
    mItem->tell();
}

void LineOverviewItemPrivate::refreshItem()
{
    mItem->setName(ICC::fromUTF8toUNICODE(mName));
    showIdentity();
    mItem->setNamePrefix(mNamePrefix.shown());
    setLineStateHelper();
}

void LineOverviewItemPrivate::showIdentity()
{
    mItem->setIdentity((mTranslatedIdentity.isTranslated() ? mTranslatedIdentity : mIdentity).shown());
}

void LineOverviewItemPrivate::setLineStateHelper()
{
    const auto state = static_cast<std::size_t>(mState);
    mItem->setSign(state < SIGNS.size() ? SIGNS[state] : LineOverviewListItem::NO_SIGN);
    mItem->setDimmed(mState == LineOverviewItem::NOT_REGISTERED);
}

void LineOverviewItemPrivate::setLineState(LineOverviewItem::LineState state)
{
    mState = state;
    setLineStateHelper();
    mItem->tell();
}

void LineOverviewItemPrivate::setDisplayHDIconStatus(bool on)
{
    mItem->setHDIcon(on);
    mItem->tell();
}

void LineOverviewItemPrivate::setLineNamePrefix(TranslationInfo* prefix)
{
    mNamePrefix = TranslatedText(prefix);
    mItem->setNamePrefix(mNamePrefix.shown());
    mItem->tell();
}

/// Without a translation the identity is the text again.
void LineOverviewItemPrivate::setLineIdentity(TranslationInfo* identity)
{
    mTranslatedIdentity = TranslatedText(identity);
    showIdentity();
    mItem->tell();
}

void LineOverviewItemPrivate::setLineIdentity(std::string identity)
{
    mTranslatedIdentity = TranslatedText();
    mIdentity = TranslatedText(std::move(identity));
    showIdentity();
    mItem->tell();
}

void LineOverviewItemPrivate::setLineName(std::string name)
{
    mName = std::move(name);
    mItem->setName(ICC::fromUTF8toUNICODE(mName));
    mItem->tell();
}

void LineOverviewItemPrivate::holdItem(int milliseconds)
{
    if (mHolds) {
        mHoldTimer.stop();
        refreshItem();
    }
    mHolds = milliseconds > 0;
    mHoldTimer.start(milliseconds);
    mItem->setHighlighted(mHolds);
    mItem->tell();
}

void LineOverviewItemPrivate::endHold()
{
    mHolds = false;
    refreshItem();
    mItem->setHighlighted(false);
    mItem->tell();
}

void LineOverviewItemPrivate::releaseOwnership()
{
    mOwnership.releaseOwnership();
}

void LineOverviewItemPrivate::gainOwnership()
{
    mOwnership.gainOwnership();
}

bool LineOverviewItemPrivate::hasOwnership() const
{
    return mOwnership.hasOwnership();
}

KestrelListBoxItem* LineOverviewItemPrivate::getKestrelListItem()
{
    return mItem;
}

} // namespace DisplayAPI
