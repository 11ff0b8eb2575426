#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <vector>

namespace test {

/// A facade without a private side: notes each request that it is asked to carry out, and completes it.
class TestWidget : public DisplayAPI::Widget {
public:
    using Handler = std::function<void(DisplayAPI::GuiRequestEvent&)>;

    /// `handler` runs before the request is completed.
    explicit TestWidget(Handler handler = {});

    void processGuiRequest(DisplayAPI::GuiRequestEvent& request) override;

    /// Codes of the requests carried out so far, in order, and the threads that did it.
    std::vector<int> codes() const;
    std::vector<unsigned int> threads() const;

    using Widget::name;

private:
    Handler mHandler;
    mutable std::mutex mMutex;
    std::vector<int> mCodes;
    std::vector<unsigned int> mThreads;
};

/// A request that counts itself in `live` for as long as it exists.
class CountedRequest : public DisplayAPI::GuiRequestEvent {
public:
    CountedRequest(DisplayAPI::Widget* requester, int code, std::atomic<int>& live)
        : GuiRequestEvent(requester, code), mLive(live)
    {
        ++mLive;
    }

    ~CountedRequest() override { --mLive; }

private:
    std::atomic<int>& mLive;
};

/// A record with numbers in its fields.
DisplayAPI::GuiRequestEvent* numbered(DisplayAPI::Widget& widget, int code, int first, int second = -1);

/// Posts a number to `widget`, waits, and returns the number that its handler answers; -1 where it does not.
int ask(DisplayAPI::Widget& widget, int code, int question);

/// What such a handler says.
void answer(DisplayAPI::GuiRequestEvent& question, int number);

} // namespace test
