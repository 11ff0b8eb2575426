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
#include <atomic>
#include <chrono>
#include <list>
#include <mutex>
#include <optional>
#include <thread>
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

constexpr std::size_t MAX_SPARE_NODES = 4096;

/// Entries in posting order, and where among them those of each item are.
struct alignas(64) Part {
    Queue entries;
    QueuedChanges<Queue::iterator> changes;
};

/// An executor takes over all that waits at once: what it has not begun of that is `taken`, which is delivered, and
/// searched, before what waits. Only who is about to deliver fills it, while it is empty.
///
/// Never destroyed: static commands and listeners recall their notifications as late as at process exit.
class Shared {
public:
    Semaphore itemQueueSemaphore{Semaphore::AVAILABLE, 1, false}; ///< guards all but what is taken
    Part* waiting = &mParts[0];
    Queue spareNodes; ///< empty list nodes, so that posting does not allocate
    bool running = false;
    int watching = 0; ///< executors that have found nothing more and watch `wanted`

    alignas(64) std::atomic<bool> wanted{false}; ///< on a line that nobody else writes

    alignas(64) std::mutex takenLock; ///< guards `taken`, inside the semaphore where both are needed
    Part* taken = &mParts[1];

private:
    Part mParts[2];
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

/// Holds both parts of the queue.
class WholeQueueLock {
public:
    explicit WholeQueueLock(Shared& state) : mWaiting(state), mTaken(state.takenLock) {}

private:
    QueueLock mWaiting;
    std::lock_guard<std::mutex> mTaken;
};

Item* itemOf(const Entry& entry)
{
    return static_cast<const ItemPayload*>(entry.second)->item;
}

void append(Shared& state, Entry entry)
{
    Part& part = *state.waiting;
    if (state.spareNodes.empty())
        part.entries.emplace_back();
    else
        part.entries.splice(part.entries.end(), state.spareNodes, state.spareNodes.begin());
    part.entries.back() = entry;
    if (entry.first == ITEM_NOTIFICATION)
        part.changes.add(itemOf(entry), std::prev(part.entries.end()));
}

/// Takes over all that waits; false where nothing does. Under the queue's lock, once all that was taken has begun.
bool takeOver(Shared& state)
{
    std::lock_guard lock(state.takenLock);
    std::swap(state.waiting, state.taken);
    return !state.taken->entries.empty();
}

/// The next entry of what has been taken over, whose node goes to `used`; nothing where all of it has begun.
std::optional<Entry> takeFirst(Shared& state, Queue& used)
{
    std::lock_guard lock(state.takenLock);
    Part& part = *state.taken;
    if (part.entries.empty())
        return std::nullopt;
    const Entry entry = part.entries.front();
    if (entry.first == ITEM_NOTIFICATION)
        part.changes.remove(itemOf(entry), part.entries.begin());
    used.splice(used.begin(), part.entries, part.entries.begin());
    return entry;
}

/// Under the queue's lock.
void giveBackNodes(Shared& state, Queue& used)
{
    if (state.spareNodes.size() + used.size() <= MAX_SPARE_NODES)
        state.spareNodes.splice(state.spareNodes.begin(), used);
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
    if (state.running || !start)
        return;
    if (state.watching > 0)
        state.wanted.store(true, std::memory_order_relaxed);
    else
        startExecutor();
}

bool isQueued(const Part& part, ItemStateListener* listener, Item* item)
{
    const auto& places = part.changes.of(item);
    return std::any_of(places.begin(), places.end(), [=](Queue::iterator place) {
        return static_cast<const ItemPayload*>(place->second)->listener == listener;
    });
}

/// Under the queue's lock.
bool isQueued(Shared& state, ItemStateListener* listener, Item* item)
{
    std::lock_guard lock(state.takenLock);
    return isQueued(*state.taken, listener, item) || isQueued(*state.waiting, listener, item);
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
void recall(Part& part, CommandListener* listener, Command* command, Displayable* displayable)
{
    std::erase_if(part.entries, [=](const Entry& entry) {
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
void recall(Part& part, Queue::iterator place, ItemStateListener* listener)
{
    auto* const queued = static_cast<ItemPayload*>(place->second);
    if (!matches(listener, queued->listener))
        return;
    logRecall(*queued);
    part.changes.remove(queued->item, place);
    part.entries.erase(place);
    delete queued;
}

/// Those of one item are found without walking the queue: rows come by the thousand.
void recall(Part& part, ItemStateListener* listener, Item* item)
{
    if (item != nullptr) {
        const auto places = part.changes.of(item);
        for (const Queue::iterator place : places)
            recall(part, place, listener);
        return;
    }
    for (auto place = part.entries.begin(); place != part.entries.end();)
        if (const auto current = place++; current->first == ITEM_NOTIFICATION)
            recall(part, current, listener);
}

/// Recalls from both parts, in the order of delivery.
template <typename... What>
void recallAll(What... what)
{
    Shared& state = shared();
    const WholeQueueLock lock(state);
    recall(*state.taken, what...);
    recall(*state.waiting, what...);
}

/// Does nothing for some microseconds but give way, or until it is `enough()`.
template <typename Enough>
void rest(Enough enough)
{
    constexpr auto LONG_ENOUGH = std::chrono::microseconds(20);
    for (const auto end = std::chrono::steady_clock::now() + LONG_ENOUGH;
         !enough() && std::chrono::steady_clock::now() < end;)
        std::this_thread::yield();
}

/// Delivers what has been taken over; returns how many these were.
int deliverTaken(Shared& state, Queue& used)
{
    int delivered = 0;
    while (const auto entry = takeFirst(state, used)) {
        deliver(*entry);
        ++delivered;
        if (used.size() > MAX_SPARE_NODES)
            used.pop_front();
    }
    return delivered;
}

/// Delivers until the queue is empty, and then is one of those who watch it. Returns false where somebody else
/// delivers.
bool deliverAll(Shared& state)
{
    constexpr int BURST = 8;
    Queue used;
    QueueLock lock(state);
    if (state.running)
        return false;
    state.running = true;
    while (takeOver(state)) {
        state.itemQueueSemaphore.give();
        const int delivered = deliverTaken(state, used);
        // Many at a time cost little more than one: in a burst posters may bring more meanwhile.
        if (delivered > BURST)
            rest([] { return false; });
        state.itemQueueSemaphore.take(-1);
        giveBackNodes(state, used);
    }
    state.running = false;
    ++state.watching;
    return true;
}

/// Whether something has come for one who watches. To be handed to a thread again for each notification costs more than
/// a moment of patience.
bool isWantedAgain(Shared& state)
{
    rest([&state] { return state.wanted.load(std::memory_order_relaxed); });
    const QueueLock lock(state);
    --state.watching;
    return state.wanted.exchange(false, std::memory_order_relaxed);
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
    recallAll(listener, command, displayable);
}

void CommandExecutor::retrieveCommand(ItemStateListener* listener, Item* item)
{
    recallAll(listener, item);
}

void CommandExecutor::run()
{
    Shared& state = shared();
    while (deliverAll(state) && isWantedAgain(state)) {
    }
}

} // namespace DisplayAPI
