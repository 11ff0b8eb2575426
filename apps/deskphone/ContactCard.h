#pragma once

#include "apps/deskphone/Screen.h"

namespace deskphone {

class CallScreen;

/// One entry of the phone book, filled anew for each. Choosing a row calls it.
class ContactCard : public Screen {
public:
    ContactCard(Telephone& telephone, Place* parent, CallScreen& call);

    void show(int entry);

private:
    void build() override {}
    void chosen(int row) override;

    CallScreen& mCall;
    int mEntry = 0;
};

} // namespace deskphone
