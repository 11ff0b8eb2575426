#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/variants/menu/CommandTexts.h"
#include "host/widgets/menu/CommandColumn.h"
#include "host/widgets/popup/PopupBox.h"
#include "variants/menu/ContextMenuPrivate.h"
#include "widgets/ApplicationWatch.h"

#include <vector>

namespace DisplayAPI {

/// A menu's data, and what hears its popup box, its time-out and the language.
struct ContextMenuSide::Impl : public PegThing {
    Impl(ContextMenuSide& menu, ContextMenu* facade, bool wayBack, Panel panelOfMenu);
    ~Impl() override;

    int Message(const PegMessage& message) override;

    /// The number of rows that are commands.
    int size() const { return static_cast<int>(rows.size()); }

    /// Null on the row that goes back, and where there is none.
    Command* commandAt(int row) const;
    int defaultRow() const;

    bool isOnScreen() const { return box != nullptr && box->StatusIs(PSF_VISIBLE); }

    void opened();
    void add(Command* command, Command* second, bool marked);
    void clear();
    void setDefault(Command* command);
    void showWayBack();
    void layOut();
    void restartTimeout();

    /// Tells the display when a menu on screen looks different.
    void changed();

    /// Both end with the menu gone, perhaps.
    void leave();
    void raise(Command* command);

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    struct Row {
        Command* command;
        Command* second;
    };

    ContextMenuSide& self;
    ContextMenu* const owner;
    const Panel panel;
    const bool leftGoesBack;
    const bool hasBackRow;
    WatchedWidget<host::PopupBox> box{std::in_place_type<host::PopupBox>};
    OwnershipDelegate<host::PopupBox> ownership{box.slot(), true};
    host::CommandColumn* const column = new host::CommandColumn; ///< the box's, and lives as long
    CommandTexts texts;
    std::vector<Row> rows;
    Command* defaultCommand = nullptr;
    TranslatorIfc* backTranslator = nullptr;
    bool userHasMoved = false;
    bool rightEqualsOk = false;
    int timeout = 0;
    int statusLines = 0;
    const ApplicationWatch application{*this};

private:
    void key(int key);
    void choose(int row);
    void languageChanged();
    PegString backText() const;
    void selectFirst();
};

} // namespace DisplayAPI
