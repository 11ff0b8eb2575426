#pragma once

#include "DisplayAPI/TextBox.h"
#include "apps/deskphone/Ear.h"
#include "apps/deskphone/Place.h"
#include "kit/Text.h"

namespace deskphone {

class Preferences;
class Telephone;

/// A page on which the user writes what he likes. Leaving it keeps it.
class Notes : public Place {
public:
    /// `preferences` outlive it.
    Notes(Telephone& telephone, Place& parent, Preferences& preferences);

    void open() override;
    void stopListening() override;

private:
    void answer(DisplayAPI::Command* command);

    Telephone& mTelephone;
    Place& mParent;
    Preferences& mPreferences;
    DisplayAPI::kit::Text mTitle;
    Ear mEar; ///< before the page that it hears
    DisplayAPI::TextBox mPage;
};

} // namespace deskphone
