#include "doubles/Answers.h"

namespace doubles {

Answers& Answers::instance()
{
    static auto* const answers = new Answers;
    return *answers;
}

void Answers::reset()
{
    size = 0;
    selectedIndex = -1;
    isSelected = false;
    icon = 0;
    call = nullptr;
    menu = nullptr;
    node = nullptr;
    item = nullptr;
    command = nullptr;
}

} // namespace doubles
