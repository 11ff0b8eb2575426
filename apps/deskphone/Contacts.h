#pragma once

#include "apps/deskphone/ContactCard.h"
#include "apps/deskphone/Screen.h"

namespace deskphone {

class Call;

/// Everybody in the phone book. Choosing one shows the card.
class Contacts : public Screen {
public:
    Contacts(Telephone& telephone, Screen* parent, Call& call);

    ContactCard& card() { return mCard; }

private:
    void build() override;
    void chosen(int row) override;

    ContactCard mCard;
};

} // namespace deskphone
