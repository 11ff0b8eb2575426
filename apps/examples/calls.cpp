#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "apps/exchange/Exchange.h"
#include "apps/exchange/ExchangeWire.h"
#include "apps/exchange/HostClock.h"
#include "apps/exchange/SignedCalls.h"
#include "host/Phone.h"
#include "kit/OffGuiThread.h"
#include "kit/Phone.h"
#include "kit/Subscription.h"
#include "kit/WayBack.h"

#include <atomic>
#include <iostream>

using namespace DisplayAPI;

namespace {

/// Says in the title what has happened last. On the exchange's thread, which waits for the GUI thread.
class Announcer : public exchange::TelephonyListener {
public:
    Announcer(exchange::Telephony& telephony, List& list) : mTelephony(telephony), mList(list)
    {
        mTelephony.setListener(this);
    }

    ~Announcer() override
    {
        kit::offGuiThread([this] { mTelephony.setListener(nullptr); });
    }

    void callChanged(const exchange::CallEvent& event) override
    {
        mLatest = event.call;
        mSigns.callChanged(event);
        mList.setTitle(event.other.name + ": " + std::string(nameOf(event.state)));
    }

    exchange::CallId latest() const { return mLatest; }

private:
    exchange::Telephony& mTelephony;
    List& mList;
    exchange::SignedCalls mSigns;
    std::atomic<exchange::CallId> mLatest{exchange::NO_CALL};
};

} // namespace

/// OK answers the latest call, or calls where there is none to answer.
int main()
{
    kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
    const exchange::Numbers numbers = exchange::Numbers::read(APP_NUMBERS);
    for (const std::string& error : numbers.errors)
        std::cerr << error << '\n';

    exchange::HostClock clock;
    exchange::Exchange exchange(numbers, clock);
    const exchange::ExchangeWire wire(exchange);
    List list(kit::listType(kit::WayBack::NOWHERE));
    Announcer announcer(exchange, list);
    const kit::Subscription choice(list, [&](Command* command) {
        if (command == List::SELECT_COMMAND() && !exchange.answer(announcer.latest()))
            exchange.place(1, list.getSelected()->getText());
    });

    phone.run(list, [&] {
        list.setTitle("Whom to call?");
        for (const exchange::Party& party : exchange.parties())
            list.append(party.number);
    });
}
