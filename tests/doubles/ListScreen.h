#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "doubles/Recorder.h"
#include "toolkit/PegWindow.h"
#include "variants/Panel.h"
#include "variants/list/ListScreenSide.h"

#include <string>

namespace DisplayAPI {

/// What recording screens of a list box have: their name, and a widget that is a real one, so that a display can show
/// it.
struct ListScreenSide::Screen {
    /// `fullName` is that of the full panel's class.
    template <typename... Args>
    Screen(const ListScreenSide& side, const std::string& fullName, Panel panel, const Args&... args)
        : self(&side), name(panel == Panel::FULL ? fullName : fullName + "WP1")
    {
        doubles::Recorder::instance().note(self, name, args...);
    }

    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(self, name + "::" + call, args...);
    }

    ~Screen() { doubles::Recorder::instance().note(self, "~" + name); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    const ListScreenSide* self;
    const std::string name;
    PegThing* widget = new PegWindow;
    OwnershipDelegate<PegThing> ownership{&widget, true};
};

} // namespace DisplayAPI
