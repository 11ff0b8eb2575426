#pragma once

#include "doubles/Recorder.h"
#include "utilities/TranslationInfo.h"
#include "variants/Panel.h"
#include "variants/telephony/CallConnectedItemPrivate.h"
#include "widgets/KestrelListBoxItem.h"

#include <string>
#include <utility>

namespace DisplayAPI {

/// What recording call rows have: their name, and a row of a list that is a real one.
struct CallConnectedItemSide::Call {
    /// `name` is that of the full panel's class.
    Call(std::string fullName, Panel panel) : name(panel == Panel::FULL ? std::move(fullName) : fullName + "WP1") {}
    virtual ~Call() { doubles::Recorder::instance().note(this, "~" + name); }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(this, name + "::" + call, args...);
    }

    template <typename... Args>
    void made(const Args&... args) const
    {
        doubles::Recorder::instance().note(this, name, args...);
    }

    const std::string name;
    KestrelListBoxItem item{PegString()};
};

} // namespace DisplayAPI
