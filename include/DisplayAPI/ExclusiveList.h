#pragma once

#include "DisplayAPI/List.h"

namespace DisplayAPI {

/// A list of which one row is chosen and carries a mark, as with radio buttons. Chosen and selected are the same.
///
/// Threads and ownership as for List; here the constructor and setSelectedIndex() wait as well.
class DISPLAYAPI_EXPORT ExclusiveList : public List {
public:
    ExclusiveList();
    ~ExclusiveList() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// Does nothing: the base class's destructor releases implementation and rows.
    void cleanup() override;
    /// Rows outside the list are ignored.
    void setSelectedIndex(int index) override;

    /// -1 where no row is chosen.
    int getSelectedIndex() override;

    /// Whether the row is the chosen one. To be asked on the GUI thread; from any other it posts and returns false.
    bool isSelected(int index);

    /// These do nothing.
    void addCommand(Command* command);
    void removeCommand(Command* command);
    void setWaitAnimation(bool on);

private:
    struct Ops;

    void createBase(bool backFlag);
    void createExclusive();
};

} // namespace DisplayAPI
