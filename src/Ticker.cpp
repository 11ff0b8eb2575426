#include "DisplayAPI/Ticker.h"

#include "Operations.h"
#include "TickerPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, SET_TEXT = 1, GET_TEXT = 2 };

} // namespace

struct Ticker::Ops : Operations<Waits<CREATE, &Ticker::create>, Waits<SET_TEXT, &TickerPrivateIfc::setText>,
                                Waits<GET_TEXT, &TickerPrivateIfc::getText>> {};

Ticker::Ticker(std::string text)
{
    Ops::call<CREATE>(*this, mImplementation, text);
}

Ticker::~Ticker()
{
    if (isGuiThread())
        delete mImplementation;
}

void Ticker::create(const std::string& text)
{
    name = "Ticker";
    mImplementation = new TickerPrivate(text);
}

void Ticker::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

void Ticker::setText(std::string text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, std::move(text));
}

std::string Ticker::getText()
{
    return Ops::call<GET_TEXT>(*this, mImplementation);
}

TickerPrivateIfc* Ticker::getPrivateImpl() const
{
    return mImplementation;
}

} // namespace DisplayAPI
