#pragma once

#include "DisplayAPI/ContextMenuPrivateIfc.h"
#include "variants/Panel.h"
#include "variants/popup/PopupSide.h"

#include <memory>

namespace DisplayAPI {

class ContextMenu;

/// The GUI-thread side of a context menu, whatever the panel.
class DISPLAYAPI_EXPORT ContextMenuSide : public PopupSide, public ContextMenuPrivateIfc {
public:
    ~ContextMenuSide() override;

    void open() override;
    void dismiss() override;
    void addCommand(Command* command, Command* second, bool marked) override;
    void addCommandWithIcon(MenuCommand* command) override;
    void clearCommands() override;
    void setDefaultCommand(MenuCommand* command) override;
    Command* getSelectedCommand() override;
    int getSelectedIndex() override;
    bool selectionHasChanged() override;
    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void setBackTranslator(TranslatorIfc* translator) override;
    void setRightArrowEqualsOK(bool on) override;
    void setAutoHideTimeout(int milliseconds) override;
    void setSysWindowSize(int lines) override;

protected:
    ContextMenuSide(ContextMenu* owner, bool wayBack, Panel panel);

private:
    Popup& popup() override;

    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The context menu of the 240 x 128 panel and its narrow form. The left key goes back.
class DISPLAYAPI_EXPORT ContextMenuPrivate : public ContextMenuSide {
public:
    /// `owner` is the facade, not owned.
    explicit ContextMenuPrivate(ContextMenu* owner);
};

/// The context menu of the 208 x 42 panel.
class DISPLAYAPI_EXPORT ContextMenuPrivateWP1 : public ContextMenuSide {
public:
    /// `owner` is the facade, not owned. `wayBack`: the left key goes back, and so does the last row, which counts as
    /// none.
    ContextMenuPrivateWP1(ContextMenu* owner, bool wayBack);
};

} // namespace DisplayAPI
