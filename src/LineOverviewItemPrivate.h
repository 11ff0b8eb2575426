#pragma once

#include "DisplayAPI/LineOverviewItemPrivateIfc.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "toolkit/PegThing.h"
#include "widgets/ApplicationWatch.h"
#include "widgets/KestrelPegTimer.h"
#include "widgets/LineOverviewListItem.h"

namespace DisplayAPI {

/// A line's row on the toolkit's, whatever the panel. It hears the timer that ends the highlight, and the application's
/// language. GUI thread only.
class LineOverviewItemPrivate : public PegThing, public KestrelTimerObserver, public LineOverviewItemPrivateIfc {
public:
    LineOverviewItemPrivate(LineOverviewItem::LineState state, std::string name, std::string identity,
                            TranslationInfo* namePrefix);

    int Message(const PegMessage& message) override;

    void localeChanged(std::string locale) override;
    void releaseOwnership() override;
    void gainOwnership() override;
    bool hasOwnership() const;
    KestrelListBoxItem* getKestrelListItem() override;

    void setLineState(LineOverviewItem::LineState state) override;
    void setDisplayHDIconStatus(bool on) override;
    void setLineNamePrefix(TranslationInfo* prefix) override;
    void setLineIdentity(TranslationInfo* identity) override;
    void setLineIdentity(std::string identity) override;
    void setLineName(std::string name) override;
    void holdItem(int milliseconds) override;

private:
    void refreshItem();
    void setLineStateHelper();
    void showIdentity();
    void endHold();

    LineOverviewListItem* mItem = new LineOverviewListItem;
    OwnershipDelegate<LineOverviewListItem> mOwnership{&mItem, true};
    std::string mName;
    TranslatedText mTranslatedIdentity; ///< where there is one, in place of the other
    TranslatedText mIdentity;
    TranslatedText mNamePrefix;
    LineOverviewItem::LineState mState;
    KestrelPegTimer mHoldTimer;
    bool mHolds = false;
    ApplicationWatch mLanguage{*this};
};

} // namespace DisplayAPI
