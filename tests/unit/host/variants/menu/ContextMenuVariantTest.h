#pragma once

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/ContextMenuPrivateIfc.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
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

/// A context menu over a list, on the real private sides. The test's thread is the GUI thread.
class ContextMenuVariantTest : public testing::TestWithParam<host::Variant> {
protected:
    ContextMenuVariantTest()
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](DisplayAPI::Command* command, auto*) {
            raised.push_back(command->getBasicText());
        });
        menu->addCommandListener(&listener);
        list.append("Ada");
        list.append("Bert");
        display.show();
        display.setCurrent(&list);
    }

    ~ContextMenuVariantTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }
    static std::string objectName() { return isSmall() ? "ContextMenu20Line2" : "ContextMenu"; }

    /// The menu's name and the given rows, as the screen's text has them.
    static std::string asText(const std::vector<std::string>& rows)
    {
        std::string text = "object:\nname:" + objectName() + "\n";
        for (const std::string& row : rows)
            text += "subitem:\nname:ContextMenuItem\nstring0:" + row + "\nendsubitem:\n";
        return text + "end:\n";
    }

    std::string shown() const { return menu->getPrivateImpl()->serialise(); }
    bool isOnScreen() { return menu->getPrivateImpl()->getWidget()->Parent() != nullptr; }
    void open() { display.setCurrent(menu.get()); }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    VirtualTime time;
    OnPanel gui{GetParam()};
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    DisplayAPI::List list{0};
    testing::NiceMock<doubles::MockCommandListener> listener;
    std::vector<std::string> raised;
    std::unique_ptr<DisplayAPI::MenuCommand> call = std::make_unique<DisplayAPI::MenuCommand>("Call", 1);
    std::unique_ptr<DisplayAPI::MenuCommand> edit = std::make_unique<DisplayAPI::MenuCommand>("Edit", 2);
    std::unique_ptr<DisplayAPI::ContextMenu> menu = std::make_unique<DisplayAPI::ContextMenu>(true);
};

} // namespace test
