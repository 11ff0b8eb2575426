#pragma once

#include "DisplayAPI/DialledItem.h"
#include "DisplayAPI/DialledItemPrivateIfc.h"
#include "DisplayAPI/ForwardedItem.h"
#include "DisplayAPI/ForwardedItemPrivateIfc.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/MissedItem.h"
#include "DisplayAPI/MissedItemPrivateIfc.h"
#include "DisplayAPI/ReceivedItem.h"
#include "DisplayAPI/ReceivedItemPrivateIfc.h"

#include <utility>

namespace DisplayAPI::kit {

/// A row of a list that shows the details of a call, one of DialledItem, ForwardedItem, MissedItem and ReceivedItem,
/// and owns them. Its own text is empty.
///
///     CallPartyIdentifier ada("Ada", "4711");
///     list.append(new kit::DetailsRow<MissedItem>(&ada, "22.11.2026\n10:41"));
///
/// On a panel without details append() does not take such a row, which stays the application's; do not insert it.
/// Threads: as for the details.
template <typename Details>
class DetailsRow : public ListItem {
public:
    /// As the details are made.
    template <typename... Args>
    explicit DetailsRow(Args&&... args) : ListItem(nullptr), mDetails(std::forward<Args>(args)...)
    {
    }

    Details& details() { return mDetails; }

    ListItemPrivateIfc* getPrivateImplemetation() override { return mDetails.getPrivateImpl(); }

private:
    Details mDetails;
};

} // namespace DisplayAPI::kit
