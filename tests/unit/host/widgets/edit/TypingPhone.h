#pragma once

#include "DisplayAPI/Display.h"
#include "DisplayAPI/Widget.h"
#include "host/Phone.h"
#include "host/languages/Languages.h"
#include "host/widgets/edit/EditLine.h"
#include "support/Keys.h"
#include "support/VirtualTime.h"

#include <gtest/gtest.h>

namespace test {

/// A telephone in one of its languages, whose keypad types that language. The test's thread is the GUI thread.
class TypingPhone : protected VirtualTime {
public:
    void change(const std::string& code)
    {
        EXPECT_EQ(mLanguages.use(code), "");
        mDisplay.setTranslator(&mLanguages);
        mDisplay.localeChanged(mLanguages.current().locale);
    }

    /// The table of a key: "lower", "upper", "restricted.lower" or "restricted.upper".
    std::u16string table(int key, const std::string& which)
    {
        const PegString text =
            peg(mLanguages.translate(std::string("Keypad.") + static_cast<char>(key) + '.' + which + ".case"));
        return {text.data(), text.data() + text.length()};
    }

    std::string say(const std::string& key) { return mLanguages.translate(key); }

private:
    struct Gui {
        Gui() { DisplayAPI::Widget::setGuiThreadId(); }
        ~Gui() { DisplayAPI::Widget::setGuiThreadId(0); }
    };

    Gui mGui;
    host::Languages mLanguages{CATALOGUES};
    DisplayAPI::Display mDisplay{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
};

inline constexpr const char* LANGUAGES[] = {"ar", "de", "en", "fr", "ja"};

} // namespace test
