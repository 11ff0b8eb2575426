#include "TickerPrivate.h"

#include "utilities/ICC.h"
#include "widgets/TickerWidget.h"

namespace DisplayAPI {

TickerPrivate::TickerPrivate(const std::string& text) : mWidget(new TickerWidget(ICC::fromUTF8toUNICODE(text)))
{
    mWidget->watchedBy(&mWidget);
}

TickerPrivate::~TickerPrivate()
{
    if (mWidget == nullptr)
        return;
    mWidget->watchedBy(nullptr);
    if (mOwnsWidget)
        delete mWidget;
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
    return mWidget;
}

std::string TickerPrivate::serialise() const
{
    return {};
}

} // namespace DisplayAPI
