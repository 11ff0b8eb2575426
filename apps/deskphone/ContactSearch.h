#pragma once

#include "DisplayAPI/SearchList.h"
#include "apps/deskphone/Contact.h"
#include "apps/deskphone/ContactCard.h"
#include "apps/deskphone/ContactDeeds.h"
#include "apps/deskphone/Ear.h"
#include "apps/deskphone/Place.h"
#include "apps/deskphone/RowMenu.h"
#include "apps/deskphone/SearchEar.h"
#include "kit/Text.h"

#include <optional>
#include <vector>

namespace deskphone {

/// Finds contacts as one types: the best matches, and how many there are. Choosing one shows the card.
class ContactSearch : public Place {
public:
    ContactSearch(const ContactDeeds& deeds, Place& parent);

    ContactCard& card() { return mCard; }

    /// With what has been found last.
    void open() override;
    void stopListening() override;

private:
    void answer(DisplayAPI::Command* command);
    void leave();

    /// Puts into the list who is found by what is typed now.
    void find();
    void note();
    bool isShown();

    Telephone& mTelephone;
    ContactBook& mBook;
    Place& mParent;
    DisplayAPI::kit::Text mTitle;
    std::vector<Contact> mFound; ///< in the order of the rows
    Contact mMenuContact;
    ContactCard mCard;
    RowMenu mMenu;
    Ear mCommands; ///< before the list that they hear
    SearchEar mTyping;
    DisplayAPI::SearchList mList;
};

} // namespace deskphone
