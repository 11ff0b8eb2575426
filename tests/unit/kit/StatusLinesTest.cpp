#include "kit/StatusLines.h"

#include "DisplayAPI/ContextMenu.h"
#include "support/Worker.h"
#include "unit/kit/KitTest.h"

#include <gmock/gmock.h>
#include <vector>

namespace kit = DisplayAPI::kit;
using testing::HasSubstr;
using testing::Not;

namespace {

class StatusLinesTest : public test::KitTest {
protected:
    StatusLinesTest()
    {
        phone.display().show();
        phone.display().setCurrent(&list);
    }
    ~StatusLinesTest() override { phone.display().setCurrent(nullptr); }

    std::string screen() { return phone.display().serialise(); }

    kit::StatusLines lines{phone.display()};
};

} // namespace

TEST_F(StatusLinesTest, ComeBackToAScreenFromUnderAPopup)
{
    lines.setText(0, "Line 1");
    lines.setSize(1);
    ASSERT_THAT(screen(), HasSubstr("Line 1"));
    DisplayAPI::ContextMenu menu(false);
    menu.show();
    menu.dismiss();
    ASSERT_EQ(phone.display().getCurrent(), &list);
    EXPECT_THAT(screen(), HasSubstr("Line 1"));
}

TEST_F(StatusLinesTest, StayAwayWhereTheyHaveBeenTakenDown)
{
    lines.setText(0, "Line 1");
    lines.setSize(1);
    lines.setSize(0);
    DisplayAPI::ContextMenu menu(false);
    menu.show();
    menu.dismiss();
    EXPECT_THAT(screen(), Not(HasSubstr("Line 1")));
}

TEST_F(StatusLinesTest, ComeWithTheirTextsToAnotherScreenThanTheyWereTakenDownFrom)
{
    lines.setText(0, "Line 1");
    lines.setSize(1);
    DisplayAPI::List other(0);
    phone.display().setCurrent(&other);
    lines.setSize(0);
    phone.display().setCurrent(&list);
    lines.setSize(1);
    EXPECT_THAT(screen(), HasSubstr("Line 1"));
    phone.display().setCurrent(nullptr);
}

TEST_F(StatusLinesTest, FewerLinesTakeTheLowerOnesOffTheScreen)
{
    lines.setText(0, "Line 1");
    lines.setText(1, "Line 2");
    lines.setSize(2);
    ASSERT_THAT(screen(), HasSubstr("Line 2"));
    lines.setSize(1);
    EXPECT_THAT(screen(), HasSubstr("Line 1"));
    EXPECT_THAT(screen(), Not(HasSubstr("Line 2")));
}

TEST_F(StatusLinesTest, LinesThatDoNotExistAreIgnored)
{
    lines.setText(-1, "Nowhere");
    lines.setText(kit::StatusLines::MOST, "Nowhere");
    lines.setSize(1);
    EXPECT_THAT(screen(), Not(HasSubstr("Nowhere")));
}

TEST_F(StatusLinesTest, CanBeSetFromAnyThread)
{
    runBesideLoop([this] {
        lines.setText(0, "Line 1");
        lines.setSize(1);
        EXPECT_THAT(screen(), HasSubstr("Line 1"));
    });
}

TEST_F(StatusLinesTest, TellOfEachScreenThatBecomesTheCurrentOne)
{
    std::vector<const DisplayAPI::Displayable*> shown;
    const kit::StatusLines telling(phone.display(),
                                   [&](const DisplayAPI::Displayable* current) { shown.push_back(current); });
    DisplayAPI::ContextMenu menu(false);
    phone.display().setCurrent(&list);
    menu.show();
    list.setTitle("Another");
    menu.dismiss();
    phone.display().setCurrent(nullptr);
    EXPECT_THAT(shown, testing::ElementsAre(&list, &menu, &list, nullptr));
}
