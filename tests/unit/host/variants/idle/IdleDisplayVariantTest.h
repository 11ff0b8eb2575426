#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/IdleDisplay.h"
#include "DisplayAPI/IdleDisplayPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "doubles/Mocks.h"
#include "host/Phone.h"
#include "host/lcd/Lcd.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace test {

/// An idle display on the real private sides, at 14:05 on 9 March 2026. The test's thread is the GUI thread.
class IdleDisplayVariantTest : public testing::TestWithParam<host::Variant> {
protected:
    IdleDisplayVariantTest()
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](DisplayAPI::Command* command, auto*) {
            raised.push_back(command == DisplayAPI::IdleDisplay::BACK_COMMAND() ? "back" : command->getBasicText());
        });
        idle->addCommandListener(&listener);
        display.show();
        display.setTimeInSystemWindow(14, 5, 0);
        display.showTimeInSystemWindow(true);
        display.setCurrent(idle.get());
    }

    ~IdleDisplayVariantTest() override
    {
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    static std::string item(const std::string& name, const std::string& text)
    {
        return "subitem:\nname:" + name + "\nstring0:" + text + "\nendsubitem:\n";
    }

    std::string shown() const { return idle->getPrivateImpl()->serialise(); }
    bool shows(const std::string& text) const { return shown().find(text) != std::string::npos; }
    bool isOnScreen() const { return idle->getPrivateImpl()->getWidget()->Parent() != nullptr; }
    void addCommands() { idle->setCommands({call.get(), edit.get()}); }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }
    static void press(const std::string& digits)
    {
        for (const char digit : digits)
            press(digit);
    }

    VirtualTime time;
    OnPanel gui{GetParam()};
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    testing::NiceMock<doubles::MockCommandListener> listener;
    std::vector<std::string> raised;
    std::unique_ptr<DisplayAPI::MenuCommand> call = std::make_unique<DisplayAPI::MenuCommand>("Call", 1);
    std::unique_ptr<DisplayAPI::MenuCommand> edit = std::make_unique<DisplayAPI::MenuCommand>("Edit", 2);
    std::unique_ptr<DisplayAPI::IdleDisplay> idle = std::make_unique<DisplayAPI::IdleDisplay>("");
};

} // namespace test
