#pragma once

#include "Cases.h"

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"

#include <cstdio>
#include <cstdlib>

namespace bench {

inline void require(bool fact, const char* what)
{
    if (fact)
        return;
    std::fprintf(stderr, "benchmark broken: %s\n", what);
    std::exit(1);
}

/// The smallest facade: a value to ask for, and events to post, bare or with a text and a number.
class Counter : public DisplayAPI::Widget {
public:
    int value()
    {
        int result = -1;
        auto* request = new DisplayAPI::GuiRequestEvent(this, VALUE);
        request->returnValue3 = &result;
        postEvent(request);
        return result;
    }

    void count() { postEventAsync(COUNT); }

    void count(const char* text, int number)
    {
        auto* request = new DisplayAPI::GuiRequestEvent(this, COUNT);
        request->stringParam1 = text;
        request->intParam1 = number;
        postEventAsync(request);
    }

    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override
    {
        if (request.getType() == VALUE)
            *static_cast<int*>(request.returnValue3) = mTally.posts;
        else
            mTally.add(request.stringParam1, request.intParam1);
        signalComplete(request);
    }

private:
    enum { VALUE = 1, COUNT = 2 };
    Tally mTally;
};

} // namespace bench
