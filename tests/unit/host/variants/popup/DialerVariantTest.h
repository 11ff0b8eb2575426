#pragma once

#include "DisplayAPI/Command.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/ItemStateListener.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "DisplayAPI/PopupDialerPrivateIfc.h"
#include "doubles/Mocks.h"
#include "host/Phone.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <atomic>
#include <memory>
#include <string>
#include <vector>

namespace test {

/// A dialer over a list, on the real private sides. The test's thread is the GUI thread.
class DialerVariantTest : public testing::TestWithParam<host::Variant> {
protected:
    DialerVariantTest()
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](DisplayAPI::Command* command, auto* dialed) {
            EXPECT_EQ(dialed, dialer.get());
            raised.push_back(nameOf(command));
        });
        dialer->addCommandListener(&listener);
        list.append("Ada");
        display.show();
        display.setCurrent(&list);
    }

    ~DialerVariantTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    static std::string nameOf(const DisplayAPI::Command* command)
    {
        if (command == DisplayAPI::PopupDialer::BackCommand())
            return "back";
        return command == DisplayAPI::PopupDialer::EditFieldShownCommand() ? "edit" : command->getBasicText();
    }

    DisplayAPI::DisplayablePrivateIfc& side() const { return *dialer->getPrivateImpl(); }
    std::string shown() const { return side().serialise(); }
    bool isOnScreen() const { return side().getWidget()->Parent() != nullptr; }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }
    static void release(int key) { gpPresent->Focus()->Message({.wType = PM_KEYRELEASE, .iData = key}); }
    static void type(const std::string& keys)
    {
        for (const char key : keys) {
            press(key);
            release(key);
        }
    }

    /// The dialer as the screen's text has it.
    static std::string asText(const std::string& contents)
    {
        return "object:\nname:PopupDialer\n" + contents + "end:\n";
    }

    VirtualTime time;
    OnPanel gui{GetParam()};
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    DisplayAPI::List list{0};
    testing::NiceMock<doubles::MockCommandListener> listener;
    std::vector<std::string> raised;
    std::unique_ptr<DisplayAPI::MenuCommand> dial = std::make_unique<DisplayAPI::MenuCommand>("Dial", 1);
    std::unique_ptr<DisplayAPI::MenuCommand> save = std::make_unique<DisplayAPI::MenuCommand>("Save", 2);
    std::unique_ptr<DisplayAPI::PopupDialer> dialer = std::make_unique<DisplayAPI::PopupDialer>(true, 3);
};

} // namespace test
