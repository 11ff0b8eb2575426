#pragma once

#include "apps/deskphone/Contact.h"
#include "apps/deskphone/ContactCard.h"
#include "apps/deskphone/ContactDeeds.h"
#include "apps/deskphone/Screen.h"

#include <atomic>
#include <mutex>
#include <vector>

namespace deskphone {

class ContactBook;

/// Everybody whom the user knows, the latest first. Choosing one shows the card.
class Contacts : public Screen {
public:
    Contacts(const ContactDeeds& deeds, Place* parent);

    ContactCard& card() { return mCard; }

private:
    void build() override;
    void chosen(int row) override;
    void menuOpens(int row) override;

    std::vector<Contact> begin();
    ContactId contactAt(int row) const;
    int rowOf(ContactId id) const;

    /// Somebody has come, changed or gone.
    void note(ContactId id);
    void insert(const Contact& contact);
    void renew(int row, const Contact& contact);
    void remove(int row);

    ContactBook& mBook;
    ContactCard mCard;
    std::atomic<bool> mIsComplete{false};
    Contact mMenuContact;
    mutable std::mutex mMutex;    ///< guards what follows; a leaf but for the book's
    std::vector<ContactId> mRows; ///< of those to come, too
    bool mHasBegun = false;
};

} // namespace deskphone
