#pragma once

#include "DisplayAPI/List.h"

namespace DisplayAPI {

/// A list of which one row is chosen and carries a mark, as with radio buttons. Chosen and selected are the same.
///
/// Threads and ownership as for List; here setSelectedIndex() waits as well.
class DISPLAYAPI_EXPORT ExclusiveList : public List {
public:
    ExclusiveList();
    ~ExclusiveList() override;

    void processGuiRequest(GuiRequestEvent& request) override;

    /// Does nothing: the base class's destructor releases implementation and rows.
    void cleanup() override;
    void setSelectedIndex(int index) override;
    int getSelectedIndex() override;

    /// Whether the row is the chosen one. On the GUI thread only; from any other it posts and returns false.
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
