#include "TickerPrivate.h"

#include "utilities/ICC.h"
#include "widgets/TickerWidget.h"

namespace DisplayAPI {

TickerPrivate::TickerPrivate(const std::string& text)
    : mWidget(std::in_place_type<TickerWidget>, ICC::fromUTF8toUNICODE(text))
{
}

TickerPrivate::~TickerPrivate()
{
    if (mOwnsWidget)
        delete mWidget.get();
}

void TickerPrivate::setText(std::string text)
{
    if (mWidget != nullptr)
        mWidget->setText(ICC::fromUTF8toUNICODE(text));
}

std::string TickerPrivate::getText()
{
    return mWidget != nullptr ? ICC::fromUNICODEtoUTF8(mWidget->getText()) : std::string();
}

PegThing* TickerPrivate::getWidget()
{
    mOwnsWidget = false;
    return mWidget.get();
}

std::string TickerPrivate::serialise() const
{
    return {};
}

} // namespace DisplayAPI
