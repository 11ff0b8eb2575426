#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/MenuCommand.h"
#include "doubles/Mocks.h"
#include "host/Phone.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/Dictionary.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "utilities/Rect.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace test {

/// A popup over a list, on the real private sides. The test's thread is the GUI thread.
template <typename Facade>
class PopupVariantTest : public testing::TestWithParam<host::Variant> {
protected:
    template <typename... Args>
    explicit PopupVariantTest(Args... args) : popup(std::make_unique<Facade>(args...))
    {
        ON_CALL(listener, postCommandAction).WillByDefault([this](DisplayAPI::Command* command, auto* shown) {
            EXPECT_EQ(shown, popup.get());
            raised.push_back(nameOf(command));
        });
        DisplayAPI::DisplayablePrivate::commonTranslator = &dictionary;
        list.append("Ada");
        display.show();
        display.setCurrent(&list);
    }

    ~PopupVariantTest() override
    {
        display.setCurrent(nullptr);
        DisplayAPI::DisplayablePrivate::commonTranslator = nullptr;
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    /// "hidden", with whether the popup is on screen still, or the label.
    std::string nameOf(const DisplayAPI::Command* command) const
    {
        if constexpr (requires { Facade::HIDDEN_COMMAND(); })
            if (command == Facade::HIDDEN_COMMAND())
                return display.getCurrent() == &list && !isOnScreen() ? "hidden" : "hidden too early";
        return command->getBasicText();
    }

    DisplayAPI::DisplayablePrivateIfc& side() const { return *popup->getPrivateImpl(); }
    std::string shown() const { return side().serialise(); }
    bool isOnScreen() const { return side().getWidget() != nullptr && side().getWidget()->Parent() != nullptr; }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    TranslationInfo* translated(const std::string& key) { return new TranslationInfo(key, &dictionary); }

    void changeLanguage(const char* language)
    {
        dictionary.language = std::string(language) + ":";
        display.localeChanged(language);
    }

    /// The popup as the screen's text has it.
    static std::string asText(const std::string& name, const std::string& contents)
    {
        return "object:\nname:" + name + "\n" + contents + "end:\n";
    }

    VirtualTime time;
    OnPanel gui{GetParam()};
    mutable DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    DisplayAPI::List list{0};
    Dictionary dictionary;
    testing::NiceMock<doubles::MockCommandListener> listener;
    std::vector<std::string> raised;
    std::unique_ptr<Facade> popup;
};

} // namespace test
