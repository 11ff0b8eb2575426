#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/variants/menu/CommandTexts.h"
#include "host/variants/popup/OwnedText.h"
#include "host/widgets/popup/DialerField.h"
#include "host/widgets/popup/PopupBox.h"
#include "variants/popup/PopupDialerPrivate.h"
#include "widgets/ApplicationWatch.h"

#include <vector>

namespace DisplayAPI {

/// A dialer's data, and what hears its box, its edit line and the language.
struct PopupDialerSide::Impl : public PegThing {
    Impl(PopupDialerSide& dialer, PopupDialer* facade, bool wayBack);
    ~Impl() override;

    int Message(const PegMessage& message) override;

    bool isOnScreen() const { return box != nullptr && box->StatusIs(PSF_VISIBLE); }

    /// Before it comes to the screen, and when it has.
    void opened();
    void arrived();

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

    /// Ends with the dialer gone, perhaps.
    void leave();

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    PopupDialerSide& self;
    PopupDialer* const owner;
    const bool leftGoesBack;
    WatchedWidget<host::PopupBox> box{std::in_place_type<host::PopupBox>};
    OwnershipDelegate<host::PopupBox> ownership{box.slot(), true};
    host::DialerField* const field = new host::DialerField; ///< the box's, and lives as long
    OwnedText prefix, text, second, stimulus, edited;
    std::vector<ItemStateListener*> listeners;
    bool isComingUp = false; ///< the display has said that it will show it
    bool userHasMoved = false;
    const ApplicationWatch application{*this};
    CommandTexts texts;
    std::vector<MenuCommand*> commands;
    MenuCommand* defaultCommand = nullptr;
    bool stimulusInHeader = false;
    bool editFieldIsShown = false;

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
    void languageChanged();
    void selectDefault();

    /// Tells the display when a dialer on screen looks different.
    void changed();
};

} // namespace DisplayAPI
