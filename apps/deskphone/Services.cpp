#include "apps/deskphone/Services.h"

#include "apps/deskphone/CallScreen.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

ServicePage::ServicePage(Telephone& telephone, Place* parent, const Service& service)
    : LineScreen(telephone, parent), mService(service), mTitle(text(service.title))
{
}

void ServicePage::build()
{
    for (const std::string& line : mService.lines)
        append(text(line));
}

std::vector<std::string> ServicePage::lines()
{
    return {mTitle.get()};
}

Services::Services(Telephone& telephone, Place* parent, CallScreen& call)
    : LineScreen(telephone, parent), mCall(call), mTitle(text("Services.title")),
      mOffered(text("Services.offered", {[] { return std::to_string(SERVICES.size()); }}))
{
    for (const Service& service : SERVICES)
        mPages.emplace_back(telephone, this, service);
}

void Services::stopListening()
{
    Screen::stopListening();
    for (ServicePage& page : mPages)
        page.stopListening();
}

void Services::stopWorking()
{
    Screen::stopWorking();
    for (ServicePage& page : mPages)
        page.stopWorking();
}

void Services::build()
{
    for (const Service& service : SERVICES)
        append(text(service.title));
}

void Services::chosen(int row)
{
    const auto place = static_cast<std::size_t>(row);
    const Service& service = SERVICES.at(place);
    const std::string party = telephone().languages().translate(service.title);
    if (service.number.empty())
        mPages.at(place).open();
    else
        mCall.begin(*this, party, service.number);
}

std::vector<std::string> Services::lines()
{
    return {mTitle.get(), mOffered.get()};
}

} // namespace deskphone
