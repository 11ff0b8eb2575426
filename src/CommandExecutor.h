#pragma once

#include "DisplayAPI/Runnable.h"

namespace DisplayAPI {

class Command;
class CommandListener;
class Displayable;
class Item;
class ItemStateListener;

/// Delivers notifications to the application: one process-wide queue, emptied in order by one pool thread at a time.
///
/// Safe from any thread. Lock: the queue's; the thread pool's lock is taken inside it. No lock is held while a listener
/// runs, so a listener may post, recall and call any facade.
class CommandExecutor : public Runnable {
public:
    enum ItemType : int { COMMAND_NOTIFICATION = 0, ITEM_NOTIFICATION = 1 };

    /// Queues a notification, and starts delivery if `start` and nobody is delivering. A null listener is ignored.
    static void postCommand(CommandListener* listener, Command* command, Displayable* displayable, bool start);

    /// The same for an item's change; one that is already queued for the listener is not queued again.
    static void postCommand(ItemStateListener* listener, Item* item, bool start);

    /// Recalls the queued notifications that match; a null argument matches any. One that is being delivered is not
    /// waited for.
    static void retrieveCommand(CommandListener* listener, Command* command, Displayable* displayable);
    static void retrieveCommand(ItemStateListener* listener, Item* item);

    /// Delivers until the queue is empty; returns at once when somebody else is delivering.
    void run() override;
};

} // namespace DisplayAPI
