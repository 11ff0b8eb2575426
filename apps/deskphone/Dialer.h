#pragma once

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"

#include <atomic>
#include <functional>
#include <string>

namespace deskphone {

class Telephone;

/// The dialer of a screen: a digit opens it, and "Dial" calls the number. Make and delete it on the GUI thread.
class Dialer : private DisplayAPI::CommandListener {
public:
    /// `dial` takes what the user has typed, on a thread of the library's; it is not empty.
    Dialer(Telephone& telephone, std::function<void(const std::string& number)> dial);

    DisplayAPI::PopupDialer& popup() { return mPopup; }

    /// What the user chooses is not heard after this. Not on the GUI thread.
    void stopListening();

private:
    void commandAction(DisplayAPI::Command* command, DisplayAPI::Displayable* displayable) override;

    Telephone& mTelephone;
    std::function<void(const std::string&)> mDial;
    DisplayAPI::MenuCommand mDialCommand;
    DisplayAPI::MenuCommand mPasteCommand;
    std::atomic<bool> mIsDeaf{false};
    DisplayAPI::PopupDialer mPopup;
};

} // namespace deskphone
