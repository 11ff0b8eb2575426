#include "host/widgets/form/Field.h"

namespace host {

void Field::setFocus(bool on)
{
    if (on == mFocus)
        return;
    mFocus = on;
    focusChanged();
    Invalidate();
}

int Field::Message(const PegMessage& message)
{
    if (message.wType == PM_KEY && key(message.iData))
        return 0;
    if (message.wType == PM_KEYRELEASE)
        released(message.iData);
    return PegThing::Message(message);
}

void Field::tell(std::uint16_t type, int data)
{
    if (mTarget == nullptr)
        return;
    PegMessage message;
    message.wType = type;
    message.iData = data;
    message.pTarget = mTarget;
    message.pSource = this;
    mTarget->Message(message);
}

} // namespace host
