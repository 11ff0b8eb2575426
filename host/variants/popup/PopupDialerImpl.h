#pragma once

#include "host/variants/popup/EditPopup.h"
#include "host/variants/popup/OwnedText.h"
#include "variants/popup/PopupDialerPrivate.h"

namespace DisplayAPI {

/// A dialer's data.
struct PopupDialerSide::Impl : public EditPopup {
    Impl(PopupDialerSide& dialer, PopupDialer* facade, bool wayBack);

    void opened() override;
    void arrived() override;
    void leaving() override { letGo(); }
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override;

    /// Changes one of the texts, and shows it.
    void set(OwnedText Impl::*text, OwnedText newText);
    void setEdited(OwnedText newText);
    void setMode(PopupDialer::eMode mode);
    void setStimulusInHeader(bool on);

    /// The key that is held is somebody else's from now on, and so is the place on top.
    void letGo();

    const bool leftGoesBack;
    OwnedText prefix, text, second, stimulus, edited;
    bool isComingUp = false; ///< the display has said that it will show it
    bool stimulusInHeader = false;
    bool editFieldIsShown = false;

protected:
    void languageChanged() override;
    void goBack() override;
    void userHasEdited() override;

private:
    void showTexts();
    bool showsEditField() const;
    void followEditField();
};

} // namespace DisplayAPI
