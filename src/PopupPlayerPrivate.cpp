#include "PopupPlayerPrivate.h"

namespace DisplayAPI {

PegThing* PopupPlayerPrivate::getWidget()
{
    return nullptr;
}

void PopupPlayerPrivate::releaseOwnership() {}

void PopupPlayerPrivate::gainOwnership() {}

void PopupPlayerPrivate::show() {}

void PopupPlayerPrivate::lostFocus() {}

bool PopupPlayerPrivate::hasOwnership() const
{
    return true;
}

} // namespace DisplayAPI
