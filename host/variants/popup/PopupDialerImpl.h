#pragma once

#include "host/variants/popup/BarCommands.h"
#include "host/variants/popup/OwnedText.h"
#include "host/variants/popup/Popup.h"
#include "host/widgets/popup/DialerField.h"
#include "variants/popup/PopupDialerPrivate.h"

#include <vector>

namespace DisplayAPI {

/// A dialer's data, and what hears its edit line.
struct PopupDialerSide::Impl : public PopupSide::Popup {
    Impl(PopupDialerSide& dialer, PopupDialer* facade, bool wayBack);
    ~Impl() override;

    void opened() override;
    void arrived() override;
    void leaving() override { letGo(); }
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override;

    /// Changes one of the texts, and shows it.
    void set(OwnedText Impl::*text, OwnedText newText);
    void setEdited(OwnedText newText);
    void setMode(PopupDialer::eMode mode);
    void setStimulusInHeader(bool on);

    void add(MenuCommand* command);
    void remove(MenuCommand* command);
    void clear();
    void setDefault(MenuCommand* command);

    /// The key that is held is somebody else's from now on, and so is the place on top.
    void letGo();

    const bool leftGoesBack;
    host::DialerField* const field = new host::DialerField; ///< the box's, and lives as long
    OwnedText prefix, text, second, stimulus, edited;
    std::vector<ItemStateListener*> listeners;
    bool isComingUp = false; ///< the display has said that it will show it
    BarCommands commands{box};
    bool stimulusInHeader = false;
    bool editFieldIsShown = false;

protected:
    void hear(const PegMessage& message) override;
    void languageChanged() override;

private:
    void key(int key);
    void moveTo(int command);
    void moved();
    void choose(int command);
    void goBack();
    void userHasEdited();
    void showTexts();
    void layOut();
    bool showsEditField() const;
    void followEditField();
};

} // namespace DisplayAPI
