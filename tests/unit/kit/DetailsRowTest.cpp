#include "kit/DetailsRow.h"

#include "kit/OffGuiThread.h"
#include "unit/kit/KitTest.h"
#include "utilities/CallPartyIdentifier.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <memory>

namespace kit = DisplayAPI::kit;
using DisplayAPI::MissedItem;
using testing::HasSubstr;
using testing::Not;

namespace {

class DetailsRowTest : public test::KitTest {
protected:
    DetailsRowTest()
    {
        phone.display().show();
        phone.display().setCurrent(&list);
    }
    ~DetailsRowTest() override
    {
        phone.display().setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setHardwareVariant(1);
    }

    using Row = kit::DetailsRow<MissedItem>;

    CallPartyIdentifier ada{"Ada", "4711"};
};

TEST_F(DetailsRowTest, ListShowsTheDetailsAndOwnsThem)
{
    kit::offGuiThread([&] {
        list.append(new Row(&ada, "10:41"));
        EXPECT_EQ(list.size(), 1);
    });
    EXPECT_THAT(phone.display().serialise(), HasSubstr("name:MissedItem\nstring0:Ada\nstring1:10:41\n"));
}

TEST_F(DetailsRowTest, RowThatIsTakenOutShowsThemNoMore)
{
    kit::offGuiThread([&] {
        auto row = std::make_unique<Row>(&ada, "10:41");
        list.append(row.get());
        list.setSelected(row.get());
        EXPECT_EQ(list.getSelected(), row.get());
        EXPECT_EQ(row->getText(), "");
        list.remove(row.get());
    });
    EXPECT_THAT(phone.display().serialise(), Not(HasSubstr("MissedItem")));
}

TEST_F(DetailsRowTest, ListDoesNotTakeARowWithoutDetails)
{
    KestrelApplication::getCurrentApplication()->setHardwareVariant(2);
    Row row(&ada, "10:41");
    EXPECT_EQ(row.details().getPrivateImpl(), nullptr);
    list.append(&row);
    EXPECT_EQ(list.size(), 0);
    EXPECT_TRUE(list.getItems().empty());
}

} // namespace
