#pragma once

#include "apps/deskphone/CallHistory.h"
#include "apps/deskphone/ContactBook.h"
#include "apps/deskphone/Preferences.h"

#include <filesystem>
#include <memory>

namespace deskphone {

class StateFile;

/// What the telephone remembers. It outlives the screens, and the exchange that asks who is there.
class Memory {
public:
    /// Kept in that folder; without one it begins with some calls, and keeps nothing.
    explicit Memory(const std::filesystem::path& folder = {});

    CallHistory& history() { return mHistory; }
    ContactBook& contacts() { return mContacts; }
    Preferences& preferences() { return mPreferences; }

private:
    explicit Memory(const std::shared_ptr<StateFile>& file);

    CallHistory mHistory;
    ContactBook mContacts;
    Preferences mPreferences;
};

} // namespace deskphone
