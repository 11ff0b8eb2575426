#include "DisplayAPI/Ticker.h"

#include "Request.h"
#include "TickerPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, SET_TEXT = 1, GET_TEXT = 2 };

} // namespace

Ticker::Ticker(std::string text)
{
    if (isGuiThread())
        create(text);
    else
        postEvent(request(this, CREATE, std::move(text)));
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
    switch (request.getType()) {
    case CREATE: create(request.stringParam1); break;
    case SET_TEXT: changeText(request.stringParam1); break;
    case GET_TEXT: answer<std::string>(request, currentText()); break;
    default: break;
    }
    signalComplete(request);
}

void Ticker::setText(std::string text)
{
    if (isGuiThread())
        return changeText(text);
    postEvent(request(this, SET_TEXT, std::move(text)));
}

std::string Ticker::getText()
{
    if (isGuiThread())
        return currentText();
    std::string text;
    postEvent(request(this, GET_TEXT, into(text)));
    return text;
}

void Ticker::changeText(const std::string& text)
{
    if (mImplementation != nullptr)
        mImplementation->setText(text);
}

std::string Ticker::currentText()
{
    return mImplementation != nullptr ? mImplementation->getText() : std::string();
}

TickerPrivateIfc* Ticker::getPrivateImpl() const
{
    return mImplementation;
}

} // namespace DisplayAPI
