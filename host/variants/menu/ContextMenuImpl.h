#pragma once

#include "host/variants/menu/CommandTexts.h"
#include "host/variants/popup/Popup.h"
#include "host/widgets/menu/CommandColumn.h"
#include "variants/menu/ContextMenuPrivate.h"

#include <vector>

namespace DisplayAPI {

/// A menu's data, and what hears its column of commands.
struct ContextMenuSide::Impl : public PopupSide::Popup {
    Impl(ContextMenuSide& menu, ContextMenu* facade, bool wayBack, Panel panelOfMenu);
    ~Impl() override;

    /// The number of rows that are commands.
    int size() const { return static_cast<int>(rows.size()); }

    /// Null on the row that goes back, and where there is none.
    Command* commandAt(int row) const;
    int defaultRow() const;

    void opened() override;
    void add(Command* command, Command* second, bool marked);
    void clear();
    void setDefault(Command* command);
    void showWayBack();
    void setStatusLines(int lines) override;
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override;

    struct Row {
        Command* command;
        Command* second;
    };

    const Panel panel;
    const bool leftGoesBack;
    const bool hasBackRow;
    host::CommandColumn* const column = new host::CommandColumn; ///< the box's, and lives as long
    CommandTexts texts;
    std::vector<Row> rows;
    Command* defaultCommand = nullptr;
    TranslatorIfc* backTranslator = nullptr;
    bool userHasMoved = false;
    bool rightEqualsOk = false;
    int statusLines = 0;

protected:
    void hear(const PegMessage& message) override;
    void languageChanged() override;

private:
    void key(int key);
    void moved();
    void choose(int row);
    void raiseAndLeave(Command* command);
    void layOut();
    PegString backText() const;
    void selectFirst();
};

} // namespace DisplayAPI
