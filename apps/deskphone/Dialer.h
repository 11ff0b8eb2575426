#pragma once

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "apps/deskphone/Ear.h"

#include <functional>
#include <string>

namespace deskphone {

class Telephone;

/// The dialer of a screen: a digit opens it, and "Dial" calls the number. Make and delete it on the GUI thread.
class Dialer {
public:
    /// `dial` takes what the user has typed, on a thread of the library's; it is not empty. `text` is the key of what
    /// that is called.
    Dialer(Telephone& telephone, std::function<void(const std::string& number)> dial,
           const std::string& text = "Dialer.dial");

    DisplayAPI::PopupDialer& popup() { return mPopup; }

    /// What the user chooses is not heard after this. Not on the GUI thread.
    void stopListening() { mChoice.stop(); }

    /// Comes up with the first digit. Screens that have been given the popup do so by themselves.
    void open(char digit);
    void open() { show({}); }

    /// Comes up with that already typed.
    void openWith(const std::string& text) { show(text); }

    /// Takes it off the screen, if it is there.
    void close() { mPopup.dismiss(); }

    bool isUp() const;

    /// Adds a digit that was pressed before it was up.
    void type(char digit);

private:
    void show(const std::string& text);
    void chosen(const DisplayAPI::Command* command);
    void paste(const std::string& text);

    Telephone& mTelephone;
    std::function<void(const std::string&)> mDial;
    DisplayAPI::MenuCommand mDialCommand;
    DisplayAPI::MenuCommand mPasteCommand;
    Ear mChoice;
    DisplayAPI::PopupDialer mPopup;
};

} // namespace deskphone
