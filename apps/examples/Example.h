#pragma once

#include "host/Phone.h"
#include "host/lcd/Geometry.h"
#include "kit/Phone.h"
#include "presentation/PRESCPresentationManager.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBoxWP1.h"
#include "widgets/KestrelListBoxWithTitle.h"

/// What the examples have in common: a telephone with one widget on it, without the library's facades.
namespace examples {

inline DisplayAPI::kit::PhoneSettings phoneSettings()
{
    return {.hardware = host::hardwareName(), .narrow = host::isNarrow()};
}

inline PegString text(const char* utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

/// The list of the running panel, which it fills.
inline KestrelListBox* newList()
{
    KestrelListBox* list = nullptr;
    if (host::variant() == host::Variant::WP1)
        list = new KestrelListBoxWP1;
    else
        list = new KestrelListBoxWithTitle;
    list->Resize(gpPresent->Area());
    return list;
}

/// Puts the widget on the screen, with the focus. The presentation manager owns it then.
inline void show(PegThing* widget)
{
    gpPresent->Add(widget);
    gpPresent->MoveFocusTree(widget);
}

} // namespace examples
