#pragma once

#include "apps/deskphone/Contact.h"
#include "apps/deskphone/RowMenu.h"

#include <vector>

namespace deskphone {

class CallScreen;
class ContactBook;
class ContactForm;
class Place;

/// What can be done with a contact, and with whom.
struct ContactDeeds {
    Telephone& telephone;
    CallScreen& call;
    ContactBook& book;
    ContactForm& form;

    /// For the contact that `chosen` is when it is done; they come back to `from`. Both outlive the actions.
    std::vector<RowMenu::Action> actions(const Contact& chosen, Place& from, std::function<void()> showDetails) const;
};

} // namespace deskphone
