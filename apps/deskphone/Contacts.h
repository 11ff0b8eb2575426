#pragma once

#include "apps/deskphone/ContactCard.h"
#include "apps/deskphone/Screen.h"

#include <vector>

namespace deskphone {

class CallScreen;

/// Everybody in the phone book. Choosing one shows the card.
class Contacts : public Screen {
public:
    Contacts(Telephone& telephone, Place* parent, CallScreen& call);

    ContactCard& card() { return mCard; }

private:
    void build() override;
    void chosen(int row) override;
    void menuOpens(int row) override { mMenuRow = row; }

    int entryAt(int row) const { return mEntries.at(static_cast<std::size_t>(row)); }
    void forget(int row);

    ContactCard mCard;
    CallScreen& mCall;
    std::vector<int> mEntries; ///< of the phone book, in the order of the rows
    int mMenuRow = 0;          ///< rows come behind it alone
};

} // namespace deskphone
