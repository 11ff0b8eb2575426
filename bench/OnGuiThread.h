#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"

#include <functional>
#include <utility>

namespace bench {

/// Runs a function on the GUI thread and waits for it.
class OnGuiThread : public DisplayAPI::Widget {
public:
    static void run(std::function<void()> body)
    {
        OnGuiThread runner(std::move(body));
        runner.postEvent(0);
    }

    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override
    {
        mBody();
        signalComplete(request);
    }

private:
    explicit OnGuiThread(std::function<void()> body) : mBody(std::move(body)) {}

    std::function<void()> mBody;
};

} // namespace bench
