#pragma once

namespace deskphone {

/// Where the user can be, and come back to. Make and delete places on the GUI thread.
class Place {
public:
    Place() = default;
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;
    virtual ~Place() = default;

    /// Shows it. On a thread that answers the user, or on the GUI thread before there is a user.
    virtual void open() = 0;

    /// What the user does is not heard after this. Not on the GUI thread.
    virtual void stopListening() = 0;

    /// Ends what it does on a thread of its own. Not on the GUI thread, which that one may be waiting for.
    virtual void stopWorking() {}
};

} // namespace deskphone
