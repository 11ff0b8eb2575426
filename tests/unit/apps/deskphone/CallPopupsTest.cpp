#include "unit/apps/deskphone/DeskFixture.h"

#include "DisplayAPI/List.h"

using testing::HasSubstr;
using testing::Not;

/// One that had been on its way when the call came.
TEST(CallPopupsTest, CallRingsOverAScreenThatComesAfterIt)
{
    test::DeskFixture desk(host::Variant::PLAIN);
    desk.run([&] {
        desk.say("4711 calls");
        desk.settle();
        EXPECT_THAT(desk.shows(), HasSubstr("Bert"));
        DisplayAPI::List late(0);
        desk.display().setCurrent(&late);
        desk.settle();
        EXPECT_NE(desk.display().getCurrent(), &late);
        EXPECT_THAT(desk.shows(), HasSubstr("Bert"));
        desk.say("4711 ends");
        desk.settle();
        EXPECT_EQ(desk.display().getCurrent(), &late);
        EXPECT_THAT(desk.shows(), Not(HasSubstr("Bert")));
    });
}
