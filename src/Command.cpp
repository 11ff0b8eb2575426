#include "DisplayAPI/Command.h"

#include "CommandExecutor.h"
#include "Variant.h"
#include "utilities/Semaphore.h"
#include "utilities/TranslationInfo.h"

#include <mutex>

namespace DisplayAPI {

namespace {

/// Guards the pointer to the list lock, which comes and goes. A leaf.
std::mutex& listLockGuard()
{
    static auto* const guard = new std::mutex;
    return *guard;
}

} // namespace

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
    commandListMutex()->take(-1);
    removeCommand(this);
    delete mTranslation;
    // After the last command this is a new lock, whose permit is free already.
    commandListMutex()->give();
}

std::string Command::getText() const
{
    commandListMutex()->take(-1);
    std::string text = mText;
    if (mTranslation != nullptr)
        text = isFullPanel() ? mTranslation->getString() : mTranslation->getCompleteString();
    commandListMutex()->give();
    return text;
}

std::string Command::getBasicText() const
{
    return mTranslation != nullptr ? mTranslation->getString() : mText;
}

Semaphore* Command::commandListMutex()
{
    std::lock_guard lock(listLockGuard());
    if (gCommandListMutex == nullptr)
        gCommandListMutex = new Semaphore(Semaphore::AVAILABLE, 1, true);
    return gCommandListMutex;
}

void Command::addCommand(Command* command)
{
    commandListMutex()->take(-1);
    gAllCommands.insert(command);
    commandListMutex()->give();
}

void Command::removeCommand(Command* command)
{
    Semaphore* const listLock = commandListMutex();
    listLock->take(-1);
    gAllCommands.erase(command);
    if (!gAllCommands.empty()) {
        listLock->give();
        return;
    }
    std::lock_guard lock(listLockGuard());
    delete gCommandListMutex;
    gCommandListMutex = nullptr;
}

bool Command::exists(Command* command)
{
    commandListMutex()->take(-1);
    const bool found = gAllCommands.count(command) != 0;
    commandListMutex()->give();
    return found;
}

} // namespace DisplayAPI
