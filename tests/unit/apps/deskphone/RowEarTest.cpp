#include "apps/deskphone/RowEar.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "kit/Fence.h"
#include "kit/OnGuiThread.h"
#include "kit/Phone.h"
#include "support/Worker.h"

#include <gmock/gmock.h>

#include <functional>
#include <vector>

using deskphone::RowEar;
using DisplayAPI::List;
using DisplayAPI::ListItem;
using testing::ElementsAre;
namespace kit = DisplayAPI::kit;

namespace {

class RowEarTest : public testing::Test {
protected:
    RowEarTest()
    {
        ear.listenTo(list);
        for (ListItem* const row : {first, second})
            list.append(row);
    }

    void run(const std::function<void()>& work)
    {
        phone.display().setCurrent(&list);
        test::Worker worker([&] {
            work();
            ear.stop();
            phone.quit();
        });
        phone.run();
        phone.display().setCurrent(nullptr);
    }

    /// As the list does when the user presses a key. Then `meanwhile` happens before anybody can hear of it.
    void choose(const std::function<void()>& meanwhile)
    {
        kit::onGuiThread([&] {
            ear.postCommandAction(List::SELECT_COMMAND(), &list);
            meanwhile();
        });
        kit::Fence().wait();
    }

    kit::Phone phone{{.hardware = "plain"}};
    std::vector<const ListItem*> heard;
    RowEar ear{[this](DisplayAPI::Command*, const ListItem* row) { heard.push_back(row); }};
    List list{0};
    ListItem* const first = new ListItem("first", false);
    ListItem* const second = new ListItem("second", false);
};

TEST_F(RowEarTest, HearsTheRowThatWasSelectedThen)
{
    run([&] {
        choose([&] { list.setSelected(second); });
        choose([] {});
    });
    EXPECT_THAT(heard, ElementsAre(first, second));
}

TEST_F(RowEarTest, HearsOfARowThatHasGoneAndOfNoOther)
{
    run([&] { choose([&] { list.remove(first); }); });
    EXPECT_THAT(heard, ElementsAre(first));
    delete first;
}

TEST_F(RowEarTest, HearsNothingAfterItHasBeenStopped)
{
    run([&] {
        ear.stop();
        choose([] {});
    });
    EXPECT_TRUE(heard.empty());
}

} // namespace
