#include "LampPrivate.h"

#include "doubles/Recorder.h"

namespace DisplayAPI {

using doubles::Recorder;

LampPrivate::LampPrivate()
{
    Recorder::instance().note(this, "LampPrivate");
}

LampPrivate::~LampPrivate()
{
    Recorder::instance().note(this, "~LampPrivate");
}

void LampPrivate::blink(int milliseconds)
{
    Recorder::instance().note(this, "LampPrivate::blink", milliseconds);
}

bool LampPrivate::isLit()
{
    Recorder::instance().note(this, "LampPrivate::isLit");
    return true;
}

} // namespace DisplayAPI
