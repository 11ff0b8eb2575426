#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"
#include "utilities/TranslationInfo.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>
#include <string>

namespace DisplayAPI {

/// What recording popups have: their name, and a widget that is a real one, so that a display can show it.
struct PopupSide::Popup {
    /// `name` is that of the full panel's class.
    Popup(const PopupSide& popup, std::string fullName, Panel panel)
        : self(&popup), name(panel == Panel::FULL ? std::move(fullName) : fullName + "WP1")
    {
    }

    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, name + "::" + call, args...);
    }

    /// By its key: the translation goes at once, as it is this side's now.
    void take(const char* call, const TranslationInfo* text) const
    {
        const std::unique_ptr<const TranslationInfo> owned(text);
        note(call, "translated " + (owned != nullptr ? owned->key() : std::string("nothing")));
    }

    template <typename... Args>
    void made(const Args&... args) const
    {
        doubles::Recorder::instance().note(self, name, args...);
    }

    ~Popup() { doubles::Recorder::instance().note(self, "~" + name); }
    Popup(const Popup&) = delete;
    Popup& operator=(const Popup&) = delete;

    const PopupSide* self;
    const std::string name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

} // namespace DisplayAPI
