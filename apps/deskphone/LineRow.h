#pragma once

#include "DisplayAPI/LineOverviewItem.h"
#include "apps/exchange/Line.h"

#include <string>

class TranslationInfo;

namespace deskphone {

/// The row of one of the telephone's lines. On the threads that answer the user, and before there are any on the GUI
/// thread.
class LineRow {
public:
    struct Look {
        DisplayAPI::LineOverviewItem::LineState state = DisplayAPI::LineOverviewItem::IDLE;
        TranslationInfo* prefix = nullptr; ///< outlives the row
        std::string identity = {};

        bool operator==(const Look&) const = default;
    };

    LineRow(exchange::LineNumber line, const std::string& name, const Look& look);

    exchange::LineNumber line() const { return mLine; }

    /// The list's.
    DisplayAPI::LineOverviewItem* item() const { return mItem; }

    /// It blinks while somebody is on hold.
    void show(const Look& look);

private:
    exchange::LineNumber mLine;
    DisplayAPI::LineOverviewItem* mItem;
    Look mShown;
};

} // namespace deskphone
