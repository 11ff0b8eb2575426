#include "Cases.h"

#include <atomic>
#include <future>
#include <glib.h>
#include <thread>

namespace bench {

namespace {

class Loop {
public:
    Loop()
        : mContext(g_main_context_new()), mLoop(g_main_loop_new(mContext, FALSE)),
          mThread([this] { g_main_loop_run(mLoop); })
    {
        call();
    }

    ~Loop()
    {
        g_main_loop_quit(mLoop);
        mThread.join();
        g_main_loop_unref(mLoop);
        g_main_context_unref(mContext);
    }

    void post(GSourceFunc function, void* data)
    {
        GSource* source = g_idle_source_new();
        g_source_set_priority(source, G_PRIORITY_DEFAULT);
        g_source_set_callback(source, function, data, nullptr);
        g_source_attach(source, mContext);
        g_source_unref(source);
    }

    void call()
    {
        std::promise<void> done;
        post(
            [](void* data) -> gboolean {
                static_cast<std::promise<void>*>(data)->set_value();
                return G_SOURCE_REMOVE;
            },
            &done);
        done.get_future().wait();
    }

private:
    GMainContext* mContext;
    GMainLoop* mLoop;
    std::thread mThread;
};

double posts(int producers)
{
    constexpr int FEWER = POSTS / 10; // a queue of sources is searched from its start
    Loop loop;
    std::atomic<int> done{0};
    const auto start = Clock::now();
    runProducers(producers, [&](int) {
        for (int i = 0; i < FEWER / producers; ++i)
            loop.post(
                [](void* data) -> gboolean {
                    static_cast<std::atomic<int>*>(data)->fetch_add(1, std::memory_order_relaxed);
                    return G_SOURCE_REMOVE;
                },
                &done);
    });
    loop.call();
    return millionsPerSecond(done, start);
}

} // namespace

std::vector<Case> glibCases()
{
    return {{UNPINNED, "GLib", "ns",
             [] {
                 Loop loop;
                 return nanosecondsEach(ROUND_TRIPS, [&] { loop.call(); });
             }},
            {ONE_PRODUCER, "GLib", "M/s", [] { return posts(1); }},
            {TWO_PRODUCERS, "GLib", "M/s", [] { return posts(2); }}};
}

} // namespace bench
