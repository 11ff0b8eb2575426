#pragma once

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayAPI/TabScreenPrivateIfc.h"
#include "doubles/Mocks.h"
#include "host/Phone.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace test {

/// A tab screen of two lists, on the real private sides. The test's thread is the GUI thread.
class TabScreenVariantTest : public testing::TestWithParam<host::Variant> {
protected:
    TabScreenVariantTest()
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](DisplayAPI::Command* command, auto*) {
            raised.push_back(command);
        });
        tabs->addCommandListener(&listener);
        for (DisplayAPI::List* list : {all.get(), missed.get()})
            for (const char* row : {"Ada", "Bert", "Cleo"})
                list->append(row);
        tabs->addTab("All", all.get(), false);
        tabs->addTab("Missed", missed.get(), false);
        display.show();
    }

    ~TabScreenVariantTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    void open() { display.setCurrent(tabs.get()); }
    PegThing* window() { return widgetOf(*tabs); }
    static PegThing* widgetOf(DisplayAPI::Displayable& shown) { return shown.getPrivateImpl()->getWidget(); }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    /// The keys are those of the list in the current tab.
    void expectInPage(DisplayAPI::List& list)
    {
        EXPECT_EQ(tabs->currentTab(), &list);
        EXPECT_EQ(widgetOf(list)->Parent(), window());
        EXPECT_EQ(gpPresent->Focus(), widgetOf(list));
        list.setSelectedIndex(0);
        press(PK_DOWN);
        EXPECT_EQ(list.getSelectedIndex(), 1);
    }

    /// The keys are those of the bar.
    void expectInBar() { EXPECT_EQ(gpPresent->Focus(), window()); }

    VirtualTime time;
    OnPanel gui{GetParam()};
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    testing::NiceMock<doubles::MockCommandListener> listener;
    std::vector<DisplayAPI::Command*> raised;
    std::unique_ptr<DisplayAPI::List> all = std::make_unique<DisplayAPI::List>(0);
    std::unique_ptr<DisplayAPI::List> missed = std::make_unique<DisplayAPI::List>(0);
    std::unique_ptr<DisplayAPI::TabScreen> tabs =
        std::make_unique<DisplayAPI::TabScreen>(DisplayAPI::TabScreen::CALLS, true);
};

} // namespace test
