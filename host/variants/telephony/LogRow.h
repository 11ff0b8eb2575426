#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "host/variants/popup/OwnedText.h"
#include "host/widgets/telephony/LinesRow.h"
#include "variants/telephony/LogRowSide.h"

#include <string>
#include <vector>

namespace DisplayAPI {

/// The lines of a call log's row while it is made.
struct LogLines {
    LogLines() { look.lines.clear(); }

    void add(OwnedText text, const host::Icon* icon = nullptr);

    /// Null is an unknown one.
    void addParty(const CallPartyIdentifier* party, const host::Icon* icon = nullptr);

    /// One for each line of the text, in UTF-8; none for an empty text.
    void addText(const std::string& text);

    host::LinesLook look;
    std::vector<OwnedText> texts; ///< of the lines
};

/// The row, whose texts follow the language.
struct LogRow {
    /// `name` is the row's in the screen as text.
    LogRow(const char* name, LogLines lines);

    void localeChanged();
    void setBold(bool on);

    std::vector<OwnedText> texts;
    host::LinesRow* item;
    OwnershipDelegate<host::LinesRow> ownership{&item, true};
};

} // namespace DisplayAPI
