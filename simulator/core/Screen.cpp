#include "simulator/core/Screen.h"

#include "simulator/screen/ScreenText.h"

namespace simulator {

std::string textOf(const Screen& screen)
{
    return screenText(screen.words.displayables, screen.picture.texts);
}

} // namespace simulator
