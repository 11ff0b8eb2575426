// Whose a row's toolkit item is, for every kind of row that can leave it to somebody else.

#include "DisplayAPI/AbbreviatedItem.h"
#include "DisplayAPI/CallBackMainItem.h"
#include "DisplayAPI/CallForwardItem.h"
#include "DisplayAPI/CallLogMainItem.h"
#include "DisplayAPI/DialledItem.h"
#include "DisplayAPI/DialledItemPrivateIfc.h"
#include "DisplayAPI/ForwardedItem.h"
#include "DisplayAPI/ForwardedItemPrivateIfc.h"
#include "DisplayAPI/LineOverviewItem.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/MissedItem.h"
#include "DisplayAPI/MissedItemPrivateIfc.h"
#include "DisplayAPI/ReceivedItem.h"
#include "DisplayAPI/ReceivedItemPrivateIfc.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBoxItem.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using namespace DisplayAPI;

namespace {

struct Made {
    std::unique_ptr<Widget> row;
    ListItemPrivateIfc* side;
};

using Rows = std::vector<std::pair<const char*, std::function<Made()>>>;

template <typename Row, typename... Args>
Made made(Args&&... args)
{
    auto row = std::make_unique<Row>(std::forward<Args>(args)...);
    ListItemPrivateIfc* side = nullptr;
    if constexpr (std::is_base_of_v<ListItem, Row>)
        side = row->getPrivateImplemetation();
    else
        side = row->getPrivateImpl();
    return {std::move(row), side};
}

const Rows& rows()
{
    static CallPartyIdentifier ada("Ada", "4711");
    static std::string noon = "12:00";
    static const Rows all{
        {"ListItem", [] { return made<ListItem>("Ada", false); }},
        {"CallLogMainItem",
         [] { return made<CallLogMainItem>(&ada, noon, CallLogMainItem::ICON_MISSED, true, false); }},
        {"CallBackMainItem",
         [] { return made<CallBackMainItem>(&ada, noon, CallBackMainItem::BUSY, CallBackMainItem::READY); }},
        {"DialledItem", [] { return made<DialledItem>(&ada, &ada, noon, noon, true); }},
        {"ForwardedItem", [] { return made<ForwardedItem>(&ada, &ada, noon); }},
        {"MissedItem", [] { return made<MissedItem>(&ada, noon); }},
        {"ReceivedItem", [] { return made<ReceivedItem>(&ada, noon, noon); }},
        {"AbbreviatedItem", [] { return made<AbbreviatedItem>(1, AbbreviatedItem::ICON_WORK, noon, false); }},
        {"CallForwardItem", [] { return made<CallForwardItem>(CallLogMainItem::NO_ICON, noon, true, false); }},
        {"LineOverviewItem", [] { return made<LineOverviewItem>(LineOverviewItem::IDLE, noon); }},
    };
    return all;
}

class RowOwnershipTest : public testing::Test {
protected:
    test::VirtualTime time;
    test::OnPanel gui{host::Variant::PLAIN};
    KestrelListBoxWithTitle box;
};

} // namespace

TEST_F(RowOwnershipTest, ItemThatIsLeftToSomebodyElseOutlivesItsRow)
{
    for (const auto& [kind, make] : rows()) {
        auto [row, side] = make();
        side->releaseOwnership();
        KestrelListBoxItem* const item = side->getKestrelListItem();
        box.append(item);
        row.reset();
        EXPECT_EQ(box.numItems(), 1) << kind;
        if (box.numItems() == 1)
            delete item; // it takes itself out of the box
    }
}

TEST_F(RowOwnershipTest, ItemThatIsTakenBackGoesWithItsRow)
{
    for (const auto& [kind, make] : rows()) {
        auto [row, side] = make();
        side->releaseOwnership();
        side->gainOwnership();
        box.append(side->getKestrelListItem());
        row.reset();
        EXPECT_EQ(box.numItems(), 0) << kind;
        box.clear();
    }
}
