#include "kit/WayBack.h"

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/List.h"
#include "host/Phone.h"
#include "host/input/Keyboard.h"
#include "kit/Phone.h"
#include "kit/Subscription.h"
#include "support/Gate.h"

#include <gtest/gtest.h>

namespace kit = DisplayAPI::kit;
using DisplayAPI::Command;
using DisplayAPI::List;
using kit::WayBack;

namespace {

/// Whether the left key leads back from such a list.
bool leadsBack(host::Variant variant, WayBack wayBack)
{
    host::setVariant(variant);
    bool back = false;
    {
        kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
        List list(kit::listType(wayBack));
        list.append("Ada");
        test::Gate through;
        const kit::Subscription commands(list, [&](Command* command) {
            back = back || command == List::BACK_COMMAND();
            if (command == List::RIGHT_COMMAND())
                through.open();
        });
        phone.run(list, [&] {
            list.size();
            host::Keyboard::instance().press(*host::Keyboard::keyFromName("left"));
            host::Keyboard::instance().press(*host::Keyboard::keyFromName("right"));
            EXPECT_TRUE(through.wait());
            phone.quit();
        });
    }
    DisplayAPI::Widget::setGuiThreadId(0);
    host::setVariant(host::Variant::PLAIN);
    return back;
}

} // namespace

TEST(WayBackTest, IsThereOnThePanelsItNames)
{
    const host::Variant full = host::Variant::PLAIN;
    const host::Variant small = host::Variant::WP1;
    EXPECT_FALSE(leadsBack(full, WayBack::NOWHERE));
    EXPECT_FALSE(leadsBack(small, WayBack::NOWHERE));
    EXPECT_FALSE(leadsBack(full, WayBack::SMALL_PANEL));
    EXPECT_TRUE(leadsBack(small, WayBack::SMALL_PANEL));
    EXPECT_TRUE(leadsBack(full, WayBack::FULL_PANEL));
    EXPECT_FALSE(leadsBack(small, WayBack::FULL_PANEL));
    EXPECT_TRUE(leadsBack(full, WayBack::EVERYWHERE));
    EXPECT_TRUE(leadsBack(small, WayBack::EVERYWHERE));
}
