#include "host/variants/popup/BringUp.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/DisplayPrivateIfc.h"

namespace DisplayAPI {

void bringUp(Displayable* popup, DisplayPrivateIfc* attachedTo)
{
    if (popup == nullptr)
        return;
    if (attachedTo != nullptr)
        attachedTo->setCurrent(popup);
    else if (Display* const latest = Display::latest())
        latest->setCurrent(popup);
}

} // namespace DisplayAPI
