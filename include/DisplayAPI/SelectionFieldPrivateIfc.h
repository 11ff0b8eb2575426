#pragma once

#include "DisplayAPI/ItemPrivateIfc.h"

namespace DisplayAPI {

class MenuCommand;

/// The GUI-thread side of a selection field. GUI thread only. Commands are not owned, and one that has been deleted
/// meanwhile keeps its text and is none any more; texts are UTF-8. What has a name of the field's does what that
/// promises of it.
class DISPLAYAPI_EXPORT SelectionFieldPrivateIfc : public ItemPrivateIfc {
public:
    virtual void setFieldContents(MenuCommand* command) = 0;
    virtual void setSelectionIndex(int index) = 0;

    /// -1 where nothing is selected.
    virtual int getSelectionIndex() = 0;
    virtual void setSelectionCommand(MenuCommand* command) = 0;

    /// Null where nothing is selected, or that has been deleted.
    virtual MenuCommand* getSelectionCommand() = 0;
    virtual void appendSelection(MenuCommand* command) = 0;
    virtual void clearSelections(MenuCommand* contents) = 0;
    virtual void setInformAppOnOk(bool on) = 0;
    virtual void setReadOnlyMode(bool on) = 0;
    virtual bool getReadOnlyMode() = 0;

    /// -1 where the choices are not shown.
    virtual int getHighlightedIndex() = 0;
    virtual void displayCurrentSelection(bool on) = 0;
    virtual void setLabel(const std::string& label) = 0;
};

} // namespace DisplayAPI
