#pragma once

#include "apps/deskphone/Screen.h"

namespace deskphone {

/// One entry of the phone book, filled anew for each.
class ContactCard : public Screen {
public:
    ContactCard(DisplayAPI::Display& display, Screen* parent);

    void show(int entry);

private:
    void build() override {}
    void chosen(int) override {}
};

} // namespace deskphone
