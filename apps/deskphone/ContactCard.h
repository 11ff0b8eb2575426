#pragma once

#include "apps/deskphone/Contact.h"
#include "apps/deskphone/Screen.h"

namespace deskphone {

class CallScreen;

/// One contact, filled anew for each: two rows for each number. Choosing one calls it.
class ContactCard : public Screen {
public:
    ContactCard(Telephone& telephone, Place* parent, CallScreen& call);

    void show(const Contact& contact);

private:
    void build() override {}
    void chosen(int row) override;

    CallScreen& mCall;
    Contact mContact;
};

} // namespace deskphone
