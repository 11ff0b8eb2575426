#include "CommandExecutor.h"

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/DisplayThread.h"
#include "DisplayAPI/DisplayThreadPool.h"
#include "DisplayAPI/ItemStateListener.h"
#include "Log.h"
#include "RecordPool.h"
#include "utilities/Semaphore.h"

#include <list>
#include <utility>

namespace DisplayAPI {

namespace {

// Another class's module name, which readers of the log know these lines by.
constexpr Log gLog{"DisplayAPI::AbbreviatedItemPrivate", "./src/CommandExecutor"};

constexpr int MAX_POOL_SIZE = 10;
constexpr int COMMAND_LINE = 120;
constexpr int ITEM_LINE = 145;

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

void append(Shared& state, Entry entry)
{
    if (state.spareNodes.empty()) {
        state.itemQueue.push_back(entry);
        return;
    }
    state.itemQueue.splice(state.itemQueue.end(), state.spareNodes, state.spareNodes.begin());
    state.itemQueue.back() = entry;
}

Entry takeFirst(Shared& state)
{
    constexpr std::size_t MAX_SPARE_NODES = 4096;
    const Entry entry = state.itemQueue.front();
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
    for (const Entry& entry : state.itemQueue) {
        const auto* payload = static_cast<const ItemPayload*>(entry.second);
        if (entry.first == ITEM_NOTIFICATION && payload->listener == listener && payload->item == item)
            return true;
    }
    return false;
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

template <typename Field>
bool matches(Field* wanted, Field* actual)
{
    return wanted == nullptr || wanted == actual;
}

/// Erases the queued entries of one type whose payload `matchesPayload`; `log` sees each before it goes.
template <typename Payload, typename Matches, typename LogLine>
void recall(ItemType type, Matches matchesPayload, LogLine log)
{
    Shared& state = shared();
    QueueLock lock(state);
    for (auto entry = state.itemQueue.begin(); entry != state.itemQueue.end();) {
        auto* payload = static_cast<Payload*>(entry->second);
        if (entry->first != type || payload == nullptr || !matchesPayload(*payload)) {
            ++entry;
            continue;
        }
        log(*payload);
        delete payload;
        entry = state.itemQueue.erase(entry);
    }
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
    recall<CommandPayload>(
        COMMAND_NOTIFICATION,
        [=](const CommandPayload& queued) {
            return matches(listener, queued.listener) && matches(command, queued.command) &&
                   matches(displayable, queued.displayable);
        },
        [](const CommandPayload& queued) {
            gLog(TRACE, COMMAND_LINE,
                 "CommandExecutor::retrieveCommand(CommandListener=%p, Command=%p, Displayable=%p) recall of posted "
                 "command.",
                 static_cast<void*>(queued.listener), static_cast<void*>(queued.command),
                 static_cast<void*>(queued.displayable));
        });
}

void CommandExecutor::retrieveCommand(ItemStateListener* listener, Item* item)
{
    recall<ItemPayload>(
        ITEM_NOTIFICATION,
        [=](const ItemPayload& queued) { return matches(listener, queued.listener) && matches(item, queued.item); },
        [](const ItemPayload& queued) {
            gLog(TRACE, ITEM_LINE,
                 "CommandExecutor::retrieveCommand(ItemStateListener=%p, Item=%p) recall of posted command.",
                 static_cast<void*>(queued.listener), static_cast<void*>(queued.item));
        });
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
