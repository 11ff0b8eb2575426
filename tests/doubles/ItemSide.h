#pragma once

#include "DisplayAPI/TranslatedText.h"
#include "doubles/Recorder.h"
#include "variants/Panel.h"

#include <string>

namespace doubles {

/// What the recording sides of a form's items have: their name.
class ItemSide {
public:
    /// `fullName` is that of the full panel's class.
    ItemSide(const std::string& fullName, DisplayAPI::Panel panel)
        : mName(panel == DisplayAPI::Panel::FULL ? fullName : fullName + "WP1")
    {
    }
    ItemSide(const ItemSide&) = delete;
    ItemSide& operator=(const ItemSide&) = delete;
    ~ItemSide() { Recorder::instance().note(this, "~" + mName); }

    /// A text as the constructors note it.
    static std::string noted(const DisplayAPI::TranslatedText& text)
    {
        return text.isTranslated() ? "translated " + text.text() : text.text();
    }

    template <typename... Args>
    void made(const Args&... args) const
    {
        Recorder::instance().note(this, mName, args...);
    }

    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        Recorder::instance().note(this, mName + "::" + call, args...);
    }

private:
    const std::string mName;
};

} // namespace doubles
