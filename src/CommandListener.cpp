#include "DisplayAPI/CommandListener.h"

#include "CommandExecutor.h"

namespace DisplayAPI {

CommandListener::~CommandListener()
{
    CommandExecutor::retrieveCommand(this, nullptr, nullptr);
}

void CommandListener::postCommandAction(Command* command, Displayable* displayable)
{
    CommandExecutor::postCommand(this, command, displayable, true);
}

void CommandListener::retrievePendingCommandAction(Command* command, Displayable* displayable)
{
    CommandExecutor::retrieveCommand(this, command, displayable);
}

} // namespace DisplayAPI
