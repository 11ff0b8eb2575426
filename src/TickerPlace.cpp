#include "DisplayAPI/TickerPlace.h"

#include "DisplayAPI/WatchedWidget.h"
#include "widgets/KestrelListBox.h"

namespace DisplayAPI {

namespace {

/// Null where there is none.
PegThing* tickerOf(const KestrelListBox& list)
{
    PegThing* child = list.First();
    while (child != nullptr && child->Type() != TYPE_TICKER)
        child = child->NextSibling();
    return child;
}

/// Nobody can give back a former ticker that nobody watches.
bool isForgotten(const PegThing& ticker)
{
    const auto* watched = dynamic_cast<const Watched*>(&ticker);
    return watched == nullptr || !watched->isWatched();
}

} // namespace

bool TickerPlace::show(KestrelListBox* list, PegThing* ticker)
{
    const bool moves = list != nullptr && tickerOf(*list) != ticker;
    if (list == nullptr)
        mFormer.Add(ticker);
    else if (moves)
        move(*list, ticker);
    dropForgotten();
    return moves;
}

/// A ticker that stands in another list leaves that one.
void TickerPlace::move(KestrelListBox& list, PegThing* ticker)
{
    auto* const before = ticker != nullptr ? dynamic_cast<KestrelListBox*>(ticker->Parent()) : nullptr;
    mFormer.Add(tickerOf(list));
    list.Add(ticker);
    list.setTickerShown(ticker != nullptr);
    if (before != nullptr)
        before->setTickerShown(false);
}

void TickerPlace::dropForgotten()
{
    for (PegThing* former = mFormer.First(); former != nullptr;) {
        PegThing* const next = former->NextSibling();
        if (isForgotten(*former))
            delete former;
        former = next;
    }
}

} // namespace DisplayAPI
