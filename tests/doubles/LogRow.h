#pragma once

#include "doubles/Recorder.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/ICC.h"
#include "variants/Panel.h"
#include "variants/telephony/LogRowSide.h"
#include "widgets/KestrelListBoxItem.h"

#include <memory>
#include <string>
#include <utility>

namespace DisplayAPI {

/// What recording rows of call logs have: their name, and a toolkit row with the party's name.
struct LogRow {
    /// `name` is that of the full panel's class.
    LogRow(const std::string& fullName, Panel panel, const CallPartyIdentifier* party)
        : name(panel == Panel::FULL ? fullName : fullName + "WP1"),
          item(ICC::fromUTF8toUNICODE(party != nullptr ? party->name() : std::string()))
    {
    }
    LogRow(const LogRow&) = delete;
    LogRow& operator=(const LogRow&) = delete;
    ~LogRow() { doubles::Recorder::instance().note(this, "~" + name); }

    template <typename... Args>
    void made(const Args&... args) const
    {
        doubles::Recorder::instance().note(this, name, args...);
    }

    template <typename... Args>
    void note(const char* call, const Args&... args) const
    {
        doubles::Recorder::instance().note(this, name + "::" + call, args...);
    }

    const std::string name;
    KestrelListBoxItem item;
};

/// "Ada 030", or "nobody" where there is no party.
inline std::string saidOf(const CallPartyIdentifier* party)
{
    return party != nullptr ? party->name() + ' ' + party->number() : "nobody";
}

template <typename Interface>
LogRowSide<Interface>::LogRowSide(std::unique_ptr<LogRow> row) : mRow(std::move(row))
{
}

template <typename Interface>
LogRowSide<Interface>::~LogRowSide() = default;

template <typename Interface>
void LogRowSide<Interface>::localeChanged(std::string locale)
{
    row().note("localeChanged", locale);
}

template <typename Interface>
void LogRowSide<Interface>::releaseOwnership()
{
    row().note("releaseOwnership");
}

template <typename Interface>
void LogRowSide<Interface>::gainOwnership()
{
    row().note("gainOwnership");
}

template <typename Interface>
KestrelListBoxItem* LogRowSide<Interface>::getKestrelListItem()
{
    return &row().item;
}

} // namespace DisplayAPI
