#include "DisplayAPI/ItemStateListener.h"

#include "CommandExecutor.h"

namespace DisplayAPI {

ItemStateListener::~ItemStateListener()
{
    CommandExecutor::retrieveCommand(this, nullptr);
}

void ItemStateListener::postItemStateChange(Item* item)
{
    CommandExecutor::postCommand(this, item, true);
}

void ItemStateListener::retrievePendingItemStateChange(Item* item)
{
    CommandExecutor::retrieveCommand(this, item);
}

} // namespace DisplayAPI
