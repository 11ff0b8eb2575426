#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "host/widgets/telephony/LinesRow.h"
#include "unit/host/variants/OnPanel.h"
#include "unit/host/variants/Told.h"
#include "unit/host/variants/popup/PopupVariantTest.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/ICC.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace test {

/// A row of a call log in a list on the screen, on the real private sides. The test's thread is the GUI thread.
class LogRowVariantTest : public testing::TestWithParam<host::Variant> {
protected:
    LogRowVariantTest()
    {
        DisplayAPI::DisplayablePrivate::commonTranslator = &dictionary;
        display.show();
        display.setCurrent(&list);
    }

    ~LogRowVariantTest() override
    {
        display.setCurrent(nullptr);
        DisplayAPI::DisplayablePrivate::commonTranslator = nullptr;
    }

    static bool isSmall() { return GetParam() == host::Variant::WP1; }

    /// In the list, which owns it.
    template <typename Row, typename... Args>
    Row& add(Args... args)
    {
        auto* const row = new Row(args...);
        list.append(row);
        return *row;
    }

    static const host::LinesLook& lookOf(DisplayAPI::ListItem& row)
    {
        return static_cast<host::LinesRow*>(row.getPrivateImplemetation()->getKestrelListItem())->look();
    }

    static std::vector<std::string> linesOf(DisplayAPI::ListItem& row)
    {
        std::vector<std::string> lines;
        for (const auto& line : lookOf(row).lines)
            lines.push_back(ICC::fromUNICODEtoUTF8(line.text));
        return lines;
    }

    static std::string endOf(DisplayAPI::ListItem& row) { return ICC::fromUNICODEtoUTF8(lookOf(row).end); }

    /// The list as the screen's text has it, with one row in it.
    static std::string asText(const std::string& name, const std::string& strings)
    {
        return "object:\nname:KestrelListBox\nsubitem:\nname:" + name + "\n" + strings + "endsubitem:\nend:\n";
    }

    std::string shown() { return list.getPrivateImpl()->serialise(); }

    int changesBy(const std::function<void()>& work) { return test::changesBy(display, work); }

    void changeLanguage(const char* language)
    {
        dictionary.language = std::string(language) + ":";
        display.localeChanged(language);
    }

    OnPanel gui{GetParam()};
    DisplayAPI::Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    Dictionary dictionary;
    CallPartyIdentifier ada{"Ada", "4711"}, number{"", "4712"}, nobody;
    DisplayAPI::List list{0};
};

} // namespace test
