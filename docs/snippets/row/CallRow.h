#pragma once

#include "DisplayAPI/ListItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "apps/examples/TwoLineRow.h"

#include <string>

namespace DisplayAPI {

/// The GUI-thread side of a call's row. It holds the row that draws itself. GUI thread only.
class CallRowSide : public ListItemPrivateIfc {
public:
    explicit CallRowSide(const std::string& name);

    void localeChanged(std::string) override {}
    void releaseOwnership() override {}
    KestrelListBoxItem* getKestrelListItem() override { return &mRow; }

    void setNumber(const std::string& number);

private:
    examples::TwoLineRow mRow;
};

/// A row with a name and a number below it.
///
/// Threads: safe from any thread. Off the GUI thread the destructor waits; everything else posts and returns at once.
class CallRow : public ListItem {
public:
    explicit CallRow(const std::string& party);
    ~CallRow() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    void setNumber(const std::string& number);

private:
    struct Ops;

    void create(const std::string& party);
};

} // namespace DisplayAPI
