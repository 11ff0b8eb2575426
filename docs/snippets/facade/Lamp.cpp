#include "Lamp.h"

#include "LampPrivate.h"
#include "Request.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, DESTROY = 1, BLINK = 2, IS_LIT = 3 };

} // namespace

Lamp::Lamp()
{
    if (isGuiThread())
        create();
    else
        postEventAsync(CREATE);
}

Lamp::~Lamp()
{
    if (isGuiThread())
        destroy();
    else
        postEvent(DESTROY);
}

void Lamp::blink(int milliseconds)
{
    if (isGuiThread())
        return startBlinking(milliseconds);
    postEventAsync(request(this, BLINK, milliseconds));
}

bool Lamp::isLit()
{
    if (isGuiThread())
        return blinks();
    bool lit = false;
    postEvent(request(this, IS_LIT, into(lit)));
    return lit;
}

void Lamp::processGuiRequest(GuiRequestEvent& request)
{
    switch (request.getType()) {
    case CREATE: create(); break;
    case DESTROY: destroy(); break;
    case BLINK: startBlinking(request.intParam1); break;
    case IS_LIT: answer<bool>(request, blinks()); break;
    default: break;
    }
    signalComplete(request);
}

void Lamp::create()
{
    name = "Lamp";
    mImplementation = new LampPrivate;
}

void Lamp::destroy()
{
    delete mImplementation;
    mImplementation = nullptr;
}

void Lamp::startBlinking(int milliseconds)
{
    if (mImplementation != nullptr)
        mImplementation->blink(milliseconds);
}

bool Lamp::blinks() const
{
    return mImplementation != nullptr && mImplementation->isLit();
}

} // namespace DisplayAPI
