#include "DisplayAPI/Command.h"

#include "CommandExecutor.h"
#include "Variant.h"
#include "utilities/Semaphore.h"
#include "utilities/TranslationInfo.h"

#include <memory>
#include <mutex>

namespace DisplayAPI {

namespace {

/// Guards the pointer to the list lock, which comes and goes. A leaf. Never destroyed, as the set.
std::mutex& listLockGuard()
{
    static auto* const guard = new std::mutex;
    return *guard;
}

/// The object behind the pointer. Threads that wait for a lock that goes keep it until they have noticed.
std::shared_ptr<Semaphore>& listLockOwner()
{
    static auto* const owner = new std::shared_ptr<Semaphore>;
    return *owner;
}

} // namespace

/// Holds the list lock, whichever it is at that moment.
class Command::ListLock {
public:
    ListLock() : mLock(listLock())
    {
        for (mLock->take(-1); mLock != listLock(); mLock->take(-1)) {
            mLock->give(); // it has gone while this thread waited for it
            mLock = listLock();
        }
    }

    ~ListLock() { mLock->give(); }
    ListLock(const ListLock&) = delete;
    ListLock& operator=(const ListLock&) = delete;

private:
    std::shared_ptr<Semaphore> mLock;
};

// Never destroyed: static commands leave the set as late as at process exit.
std::set<Command*>& Command::gAllCommands = *new std::set<Command*>;
Semaphore* Command::gCommandListMutex = nullptr;

Command::Command(TranslationInfo* label, Type type) : mType(type), mTranslation(label)
{
    addCommand(this);
}

Command::Command(const std::string& text, Type type) : mText(text), mType(type)
{
    addCommand(this);
}

Command::Command(const Command& other)
    : mText(other.mText), mType(other.mType), mUseAlternativeDisplay(other.mUseAlternativeDisplay),
      mTranslation(other.mTranslation)
{
    addCommand(this);
}

Command& Command::operator=(const Command& other)
{
    mText = other.mText;
    mType = other.mType;
    mUseAlternativeDisplay = other.mUseAlternativeDisplay;
    mTranslation = other.mTranslation;
    return *this;
}

Command::~Command()
{
    CommandExecutor::retrieveCommand(nullptr, this, nullptr);
    {
        ListLock lock;
        removeCommand(this);
        delete mTranslation;
    }
    // After the last command the list lock has gone: leave a new one, whose permit is free.
    commandListMutex();
}

std::string Command::getText() const
{
    ListLock lock;
    if (mTranslation == nullptr)
        return mText;
    return isFullPanel() ? mTranslation->getString() : mTranslation->getCompleteString();
}

std::string Command::getBasicText() const
{
    return mTranslation != nullptr ? mTranslation->getString() : mText;
}

std::shared_ptr<Semaphore> Command::listLock()
{
    std::lock_guard lock(listLockGuard());
    if (gCommandListMutex == nullptr) {
        listLockOwner() = std::make_shared<Semaphore>(Semaphore::AVAILABLE, 1, true);
        gCommandListMutex = listLockOwner().get();
    }
    return listLockOwner();
}

Semaphore* Command::commandListMutex()
{
    return listLock().get();
}

void Command::addCommand(Command* command)
{
    ListLock lock;
    gAllCommands.insert(command);
}

void Command::removeCommand(Command* command)
{
    ListLock lock;
    gAllCommands.erase(command);
    if (!gAllCommands.empty())
        return;
    std::lock_guard guard(listLockGuard());
    gCommandListMutex = nullptr;
}

bool Command::exists(Command* command)
{
    ListLock lock;
    return gAllCommands.count(command) != 0;
}

std::optional<std::string> Command::textOf(Command* command)
{
    ListLock lock;
    if (!exists(command))
        return {};
    return command->getText();
}

} // namespace DisplayAPI
