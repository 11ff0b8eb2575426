#pragma once

#include "DisplayAPI/Export.h"

namespace DisplayAPI {

class Item;

/// Implemented by the application to learn that the user has changed an item. Not deleted through this interface.
class DISPLAYAPI_EXPORT ItemStateListener {
public:
    /// `item` has changed. Called on a pool thread, one notification of the process at a time, in order. It must not
    /// throw.
    virtual void itemStateChanged(Item* item) = 0;

    /// Queues a notification and returns at once. From any thread. A change of the same item that is still queued for
    /// this listener is not queued again.
    void postItemStateChange(Item* item);

    /// Recalls this listener's queued notifications of the item; null matches any. From any thread; does not wait for
    /// one that is being delivered.
    void retrievePendingItemStateChange(Item* item);

protected:
    /// Recalls every queued notification for this listener. One that is being delivered meanwhile is not waited for.
    ~ItemStateListener();
};

} // namespace DisplayAPI
