#pragma once

#include "DisplayAPI/CallConnectedItem.h"
#include "DisplayAPI/CallConnectedItemPrivateIfc.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "host/Phone.h"
#include "host/lcd/Icons.h"
#include "host/widgets/telephony/LinesRow.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelApplication.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace test {

/// A list of calls on the display, on the real private sides. The test's thread is the GUI thread.
class CallRowsTest : public testing::TestWithParam<host::Variant>, public TranslatorIfc {
protected:
    using Call = DisplayAPI::CallConnectedItem;
    using Texts = std::vector<std::string>;
    using Icons = std::vector<const host::Icon*>;

    CallRowsTest()
    {
        DisplayAPI::DisplayablePrivate::commonTranslator = this;
        display.show();
        display.setCurrent(&list);
    }

    ~CallRowsTest() override
    {
        display.setCurrent(nullptr);
        DisplayAPI::DisplayablePrivate::commonTranslator = nullptr;
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
    }

    std::string translate(const std::string& key) override { return language + ":" + key; }

    void changeLanguage(const char* to)
    {
        language = to;
        display.localeChanged(to);
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    static const host::LinesLook& lookOf(DisplayAPI::ListItem& item)
    {
        return dynamic_cast<host::LinesRow&>(*item.getPrivateImplemetation()->getKestrelListItem()).look();
    }

    static std::string utf8(const PegString& text) { return ICC::fromUNICODEtoUTF8(text); }
    static std::string endOf(DisplayAPI::ListItem& item) { return utf8(lookOf(item).end); }

    static Texts linesOf(DisplayAPI::ListItem& item)
    {
        Texts texts;
        for (const host::LinesLook::Line& line : lookOf(item).lines)
            texts.push_back(utf8(line.text));
        return texts;
    }

    static Icons iconsOf(DisplayAPI::ListItem& item)
    {
        Icons icons;
        for (const host::LinesLook::Line& line : lookOf(item).lines)
            icons.push_back(line.icon);
        return icons;
    }

    /// What the panel of two lines leaves of them.
    static Texts fitting(Texts all)
    {
        if (isSmall() && all.size() > 2)
            all.resize(2);
        return all;
    }

    /// To whoever has the focus.
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    std::string shown() { return list.getPrivateImpl()->serialise(); }

    VirtualTime time;
    OnPanel gui{GetParam()};
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    DisplayAPI::List list{0};
    std::string language = "en";
    TranslationInfo text{"Key", this};
};

} // namespace test
