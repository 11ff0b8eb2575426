#include "TickerPrivate.h"

#include "utilities/ICC.h"
#include "widgets/TickerWidget.h"

namespace DisplayAPI {

TickerPrivate::TickerPrivate(const std::string& text) : mWidget(new TickerWidget(ICC::fromUTF8toUNICODE(text))) {}

TickerPrivate::~TickerPrivate()
{
    if (mOwnsWidget)
        delete mWidget;
}

void TickerPrivate::setText(std::string text)
{
    mWidget->setText(ICC::fromUTF8toUNICODE(text));
}

std::string TickerPrivate::getText()
{
    return ICC::fromUNICODEtoUTF8(mWidget->getText());
}

PegThing* TickerPrivate::getWidget()
{
    mOwnsWidget = false;
    return mWidget;
}

std::string TickerPrivate::serialise() const
{
    return {};
}

} // namespace DisplayAPI
