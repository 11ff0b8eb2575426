#pragma once

#include "DisplayAPI/Displayable.h"
#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/Rectangles.h"
#include "presentation/PRESCPresentationManager.h"

/// What the display asks of a displayable on its stack, which may have no private side, or one without a widget.
namespace DisplayAPI {

/// The log takes plain pointers.
inline const void* address(const void* object)
{
    return object;
}

inline const char* nameOf(Displayable* displayable)
{
    return displayable != nullptr ? displayable->getName().c_str() : "";
}

inline PegThing* widgetOf(DisplayablePrivateIfc* side)
{
    return side != nullptr ? side->getWidget() : nullptr;
}

inline PegThing* widgetOf(Displayable* displayable)
{
    return displayable != nullptr ? widgetOf(displayable->getPrivateImpl()) : nullptr;
}

inline void lostFocus(Displayable* displayable)
{
    if (DisplayablePrivateIfc* side = displayable->getPrivateImpl())
        side->lostFocus();
}

inline DisplayAPIUtils::Rect rectOf(const PegThing& widget)
{
    return toRect(widget.Area());
}

inline bool isOnScreen(const PegThing* widget)
{
    return widget != nullptr && widget->Parent() != nullptr && widget->Parent() == gpPresent;
}

inline void addToScreen(PegThing* widget)
{
    if (gpPresent != nullptr)
        gpPresent->Add(widget, true);
}

inline void removeFromScreen(PegThing* widget)
{
    if (gpPresent != nullptr)
        gpPresent->Remove(widget, true);
}

} // namespace DisplayAPI
