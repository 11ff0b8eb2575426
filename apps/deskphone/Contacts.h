#pragma once

#include "apps/deskphone/ContactCard.h"
#include "apps/deskphone/Screen.h"

namespace deskphone {

/// Everybody in the phone book. Choosing one shows the card.
class Contacts : public Screen {
public:
    Contacts(DisplayAPI::Display& display, Screen* parent);

    ContactCard& card() { return mCard; }

private:
    void build() override;
    void chosen(int row) override;

    ContactCard mCard;
};

} // namespace deskphone
