#include "DisplayAPI/Item.h"

#include "CommandExecutor.h"

namespace DisplayAPI {

Item::~Item()
{
    CommandExecutor::retrieveCommand(nullptr, this);
}

void Item::setParent(Displayable* parent)
{
    mParent = parent;
}

std::string Item::getType()
{
    return "baseItem";
}

int Item::getID()
{
    return 0;
}

void Item::setReadOnly(bool) {}

bool Item::isReadOnly()
{
    return false;
}

} // namespace DisplayAPI
