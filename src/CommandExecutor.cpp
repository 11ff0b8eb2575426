#include "CommandExecutor.h"

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/DisplayThread.h"
#include "DisplayAPI/DisplayThreadPool.h"
#include "DisplayAPI/ItemStateListener.h"
#include "Log.h"
#include "QueuedChanges.h"
#include "RecordPool.h"
#include "utilities/Semaphore.h"

#include <algorithm>
#include <list>
#include <utility>

namespace DisplayAPI {

namespace {

// Another class's module name, which readers of the log know these lines by.
constexpr Log gLog{"DisplayAPI::AbbreviatedItemPrivate", "./src/CommandExecutor"};

constexpr int MAX_POOL_SIZE = 10;

constexpr auto COMMAND_NOTIFICATION = CommandExecutor::COMMAND_NOTIFICATION;
constexpr auto ITEM_NOTIFICATION = CommandExecutor::ITEM_NOTIFICATION;
using ItemType = CommandExecutor::ItemType;

/// Payloads are made by one thread and deleted by another, like request records.
template <typename Payload>
struct Pooled {
    static void* operator new(std::size_t) { return RecordPool<Payload>::allocate(); }
    static void operator delete(void* payload) noexcept { RecordPool<Payload>::release(payload); }
};

struct CommandPayload : Pooled<CommandPayload> {
    CommandPayload(CommandListener* l, Command* c, Displayable* d) : listener(l), command(c), displayable(d) {}

    CommandListener* listener;
    Command* command;
    Displayable* displayable;
};

struct ItemPayload : Pooled<ItemPayload> {
    ItemPayload(ItemStateListener* l, Item* i) : listener(l), item(i) {}

    ItemStateListener* listener;
    Item* item;
};

using Entry = std::pair<ItemType, void*>;
using Queue = std::list<Entry>;

/// Never destroyed: static commands and listeners recall their notifications as late as at process exit.
struct Shared {
    Semaphore itemQueueSemaphore{Semaphore::AVAILABLE, 1, false};
    Queue itemQueue;
    Queue spareNodes; ///< empty list nodes, so that posting does not allocate
    QueuedChanges<Queue::iterator> changes;
    bool running = false;
};

Shared& shared()
{
    static Shared* const state = new Shared;
    return *state;
}

class QueueLock {
public:
    explicit QueueLock(Shared& state) : mState(state) { mState.itemQueueSemaphore.take(-1); }
    ~QueueLock() { mState.itemQueueSemaphore.give(); }
    QueueLock(const QueueLock&) = delete;
    QueueLock& operator=(const QueueLock&) = delete;

private:
    Shared& mState;
};

Item* itemOf(const Entry& entry)
{
    return static_cast<const ItemPayload*>(entry.second)->item;
}

void append(Shared& state, Entry entry)
{
    if (state.spareNodes.empty())
        state.itemQueue.emplace_back();
    else
        state.itemQueue.splice(state.itemQueue.end(), state.spareNodes, state.spareNodes.begin());
    state.itemQueue.back() = entry;
    if (entry.first == ITEM_NOTIFICATION)
        state.changes.add(itemOf(entry), std::prev(state.itemQueue.end()));
}

Entry takeFirst(Shared& state)
{
    constexpr std::size_t MAX_SPARE_NODES = 4096;
    const Entry entry = state.itemQueue.front();
    if (entry.first == ITEM_NOTIFICATION)
        state.changes.remove(itemOf(entry), state.itemQueue.begin());
    if (state.spareNodes.size() < MAX_SPARE_NODES)
        state.spareNodes.splice(state.spareNodes.begin(), state.itemQueue, state.itemQueue.begin());
    else
        state.itemQueue.pop_front();
    return entry;
}

void startExecutor()
{
    auto* executor = new CommandExecutor;
    if (DisplayThread* thread = DisplayThreadPool::instance(MAX_POOL_SIZE)->getThread())
        thread->executeRequest(executor);
    else {
        gLog(LOST, 96, "CommandExecutor: no thread could be started, the next notification tries again");
        delete executor;
    }
}

void post(Shared& state, Entry entry, bool start)
{
    append(state, entry);
    if (!state.running && start)
        startExecutor();
}

bool isQueued(const Shared& state, ItemStateListener* listener, Item* item)
{
    const auto& places = state.changes.of(item);
    return std::any_of(places.begin(), places.end(), [=](Queue::iterator place) {
        return static_cast<const ItemPayload*>(place->second)->listener == listener;
    });
}

void deliver(const CommandPayload& payload)
{
    if (payload.listener != nullptr)
        payload.listener->commandAction(payload.command, payload.displayable);
}

void deliver(const ItemPayload& payload)
{
    payload.listener->itemStateChanged(payload.item);
}

template <typename Payload>
void deliverAndDelete(void* memory)
{
    auto* payload = static_cast<Payload*>(memory);
    if (payload != nullptr)
        deliver(*payload);
    delete payload;
}

void deliver(Entry entry)
{
    if (entry.first == COMMAND_NOTIFICATION)
        deliverAndDelete<CommandPayload>(entry.second);
    else if (entry.first == ITEM_NOTIFICATION)
        deliverAndDelete<ItemPayload>(entry.second);
}

void logRecall(const CommandPayload& queued)
{
    gLog(TRACE, 120,
         "CommandExecutor::retrieveCommand(CommandListener=%p, Command=%p, Displayable=%p) recall of posted command.",
         static_cast<void*>(queued.listener), static_cast<void*>(queued.command),
         static_cast<void*>(queued.displayable));
}

void logRecall(const ItemPayload& queued)
{
    gLog(TRACE, 145, "CommandExecutor::retrieveCommand(ItemStateListener=%p, Item=%p) recall of posted command.",
         static_cast<void*>(queued.listener), static_cast<void*>(queued.item));
}

template <typename Field>
bool matches(Field* wanted, Field* actual)
{
    return wanted == nullptr || wanted == actual;
}

/// Erases the queued commands that match.
void recall(CommandListener* listener, Command* command, Displayable* displayable)
{
    Shared& state = shared();
    QueueLock lock(state);
    std::erase_if(state.itemQueue, [=](const Entry& entry) {
        auto* const queued = static_cast<CommandPayload*>(entry.second);
        if (entry.first != COMMAND_NOTIFICATION || queued == nullptr || !matches(listener, queued->listener) ||
            !matches(command, queued->command) || !matches(displayable, queued->displayable))
            return false;
        logRecall(*queued);
        delete queued;
        return true;
    });
}

/// Erases a queued item's change if it is for `listener`, which null always is.
void recall(Shared& state, Queue::iterator place, ItemStateListener* listener)
{
    auto* const queued = static_cast<ItemPayload*>(place->second);
    if (!matches(listener, queued->listener))
        return;
    logRecall(*queued);
    state.changes.remove(queued->item, place);
    state.itemQueue.erase(place);
    delete queued;
}

/// Those of one item are found without walking the queue: rows come by the thousand.
void recall(ItemStateListener* listener, Item* item)
{
    Shared& state = shared();
    QueueLock lock(state);
    if (item != nullptr) {
        const auto places = state.changes.of(item);
        for (const Queue::iterator place : places)
            recall(state, place, listener);
        return;
    }
    for (auto place = state.itemQueue.begin(); place != state.itemQueue.end();)
        if (const auto current = place++; current->first == ITEM_NOTIFICATION)
            recall(state, current, listener);
}

} // namespace

void CommandExecutor::postCommand(CommandListener* listener, Command* command, Displayable* displayable, bool start)
{
    if (listener == nullptr)
        return;
    auto* payload = new CommandPayload(listener, command, displayable);
    Shared& state = shared();
    QueueLock lock(state);
    post(state, {COMMAND_NOTIFICATION, payload}, start);
}

void CommandExecutor::postCommand(ItemStateListener* listener, Item* item, bool start)
{
    if (listener == nullptr)
        return;
    Shared& state = shared();
    QueueLock lock(state);
    if (!isQueued(state, listener, item))
        post(state, {ITEM_NOTIFICATION, new ItemPayload(listener, item)}, start);
}

void CommandExecutor::retrieveCommand(CommandListener* listener, Command* command, Displayable* displayable)
{
    recall(listener, command, displayable);
}

void CommandExecutor::retrieveCommand(ItemStateListener* listener, Item* item)
{
    recall(listener, item);
}

void CommandExecutor::run()
{
    Shared& state = shared();
    state.itemQueueSemaphore.take(-1);
    if (state.running) {
        state.itemQueueSemaphore.give();
        return;
    }
    state.running = !state.itemQueue.empty();
    while (state.running && !state.itemQueue.empty()) {
        const Entry entry = takeFirst(state);
        state.itemQueueSemaphore.give();
        deliver(entry);
        state.itemQueueSemaphore.take(-1);
    }
    state.running = false;
    state.itemQueueSemaphore.give();
}

} // namespace DisplayAPI
