#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/input/KeyLamps.h"
#include "host/widgets/desktop/DesktopWidget.h"
#include "variants/desktop/DesktopPrivate.h"
#include "widgets/ApplicationWatch.h"

namespace DisplayAPI {

/// A desktop's data, and what hears its widget and the language.
struct DesktopSide::Impl final : public PegThing, public host::DesktopListener {
    Impl(DesktopSide& desktop, Desktop* facade, Panel panel);
    ~Impl() override;

    int Message(const PegMessage& message) override;
    void desktopKey(int key) override;
    void desktopChanged() override;
    void desktopHidden() override;
    void desktopWoken() override;

    bool isKey(int key) const { return key >= 0 && key < lamps.keys(); }

    /// REQUIRES: there are a widget and such a key.
    const host::KeyLabel& label(int key, bool shifted) const
    {
        return widget->state().keys[static_cast<std::size_t>(key)].levels[shifted ? 1 : 0];
    }

    void setMode(const std::string& text, const std::string& detail);
    void setPreviousMode(const std::string& text);
    void setPostTimeIcon(int icon, bool on);
    void setIcon(host::DesktopIcon icon, bool on);
    void readDayNames();
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    struct Mode {
        std::string text;
        std::string detail;
    };

    DesktopSide& self;
    Desktop* const owner;
    host::KeyLamps lamps;
    WatchedWidget<host::DesktopWidget> widget;
    OwnershipDelegate<host::DesktopWidget> ownership{widget.slot(), true};
    Mode mode;
    Mode previousMode; ///< which the mode has replaced
    TranslatorIfc* dayTranslator = nullptr;
    const ApplicationWatch application{*this};

private:
    void showMode();
};

} // namespace DisplayAPI
