#pragma once

#include "apps/deskphone/LineScreen.h"
#include "apps/deskphone/ServiceBook.h"

#include <deque>

namespace deskphone {

class CallScreen;

/// What a service has to say, line by line.
class ServicePage : public LineScreen {
public:
    ServicePage(Telephone& telephone, Place* parent, const Service& service);

private:
    void build() override;
    void chosen(int) override {}
    std::vector<std::string> lines() override;

    const Service& mService;
    Text& mTitle;
};

/// The services of the house. Choosing one shows what it has to say, or calls it.
class Services : public LineScreen {
public:
    Services(Telephone& telephone, Place* parent, CallScreen& call);

    void stopListening() override;
    void stopWorking() override;

private:
    void build() override;
    void chosen(int row) override;
    std::vector<std::string> lines() override;

    CallScreen& mCall;
    Text& mTitle;
    Text& mOffered;
    std::deque<ServicePage> mPages; ///< one for each service
};

} // namespace deskphone
