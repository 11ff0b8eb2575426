#include "Lamp.h"

#include "LampPrivate.h"
#include "Operations.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, DESTROY = 1, BLINK = 2, IS_LIT = 3 };

} // namespace

struct Lamp::Ops : Operations<Posts<CREATE, &Lamp::create>, Waits<DESTROY, &Lamp::destroy>,
                              Posts<BLINK, &LampPrivateIfc::blink>, Waits<IS_LIT, &LampPrivateIfc::isLit>> {};

Lamp::Lamp()
{
    Ops::call<CREATE>(*this, mImplementation);
}

Lamp::~Lamp()
{
    Ops::call<DESTROY>(*this, mImplementation);
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

void Lamp::blink(int milliseconds)
{
    Ops::call<BLINK>(*this, mImplementation, milliseconds);
}

bool Lamp::isLit()
{
    return Ops::call<IS_LIT>(*this, mImplementation);
}

void Lamp::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

} // namespace DisplayAPI
