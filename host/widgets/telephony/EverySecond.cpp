#include "host/widgets/telephony/EverySecond.h"

#include "host/widgets/status/TimeText.h"
#include "toolkit/PegThing.h"

#include <utility>

namespace host {

/// The timer that all of them share. It runs while there is one.
class EverySecond::Beat : public PegThing {
public:
    using Place = std::list<EverySecond*>::iterator;

    /// Never destroyed: a static widget may leave as late as at process exit.
    static Beat& instance()
    {
        static auto* const beat = new Beat;
        return *beat;
    }

    Place add(EverySecond* one)
    {
        if (mAll.empty())
            SetTimer(ID, SECOND, true);
        return mAll.insert(mAll.end(), one);
    }

    void remove(Place place)
    {
        if (mNext == place)
            ++mNext;
        mAll.erase(place);
        if (mAll.empty())
            KillTimer(ID);
    }

    int Message(const PegMessage& message) override
    {
        if (message.wType != PM_TIMER)
            return PegThing::Message(message);
        for (mNext = mAll.begin(); mNext != mAll.end();) {
            const auto tell = (*mNext++)->mTell; // a copy: who is told may go
            tell();
        }
        return 0;
    }

private:
    static constexpr int ID = 1;

    std::list<EverySecond*> mAll;
    Place mNext = mAll.end(); ///< who is told next
};

EverySecond::EverySecond(std::function<void()> tell) : mTell(std::move(tell)), mPlace(Beat::instance().add(this)) {}

EverySecond::~EverySecond()
{
    Beat::instance().remove(mPlace);
}

} // namespace host
