#include "host/variants/desktop/KeyCommands.h"

#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/MenuCommand.h"
#include "toolkit/PegMessage.h"

#include <map>
#include <memory>
#include <string>

namespace DisplayAPI {

namespace {

unsigned int idOf(int key)
{
    switch (key) {
    case PK_OK: return Desktop::OK_KEY;
    case PK_UP: return Desktop::UP_KEY;
    case PK_DOWN: return Desktop::DOWN_KEY;
    case PK_LEFT: return Desktop::LEFT_KEY;
    case PK_RIGHT: return Desktop::RIGHT_KEY;
    default: break;
    }
    if (key >= PK_FPK1 && key <= PK_FPK_LAST)
        return Desktop::FPK + static_cast<unsigned int>(key - PK_FPK1);
    return key >= PK_HASH && key <= PK_9 ? static_cast<unsigned int>(key) : 0;
}

MenuCommand* commandWith(unsigned int id)
{
    static auto& commands = *new std::map<unsigned int, std::unique_ptr<MenuCommand>>;
    auto& command = commands[id];
    if (command == nullptr)
        command = std::make_unique<MenuCommand>("", id);
    return command.get();
}

} // namespace

MenuCommand* keyCommand(int key)
{
    const unsigned int id = idOf(key);
    return id != 0 ? commandWith(id) : nullptr;
}

MenuCommand* wakeCommand()
{
    return commandWith(Desktop::SCREENSAVER_ENDED);
}

} // namespace DisplayAPI
