#include "Cases.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

#include <atomic>

namespace bench {

namespace {

class Loop {
public:
    Loop()
    {
        static int argc = 1;
        static char name[] = "bench";
        static char* argv[] = {name, nullptr};
        if (QCoreApplication::instance() == nullptr)
            new QCoreApplication(argc, argv);
        mObject.moveToThread(&mThread);
        mThread.start();
    }

    ~Loop()
    {
        mThread.quit();
        mThread.wait();
    }

    template <typename Function>
    void post(Function function)
    {
        QMetaObject::invokeMethod(&mObject, std::move(function), Qt::QueuedConnection);
    }

    int call()
    {
        int result = 0;
        QMetaObject::invokeMethod(
            &mObject, [] { return 1; }, Qt::BlockingQueuedConnection, &result);
        return result;
    }

private:
    QThread mThread;
    QObject mObject;
};

double posts(int producers)
{
    Loop loop;
    std::atomic<int> done{0};
    const auto start = Clock::now();
    runProducers(producers, [&](int) {
        for (int i = 0; i < POSTS / producers; ++i)
            loop.post([&] { done.fetch_add(1, std::memory_order_relaxed); });
    });
    loop.call();
    return millionsPerSecond(done, start);
}

} // namespace

std::vector<Case> qtCases()
{
    std::vector<Case> cases{{UNPINNED, "Qt, BlockingQueuedConnection", "ns",
                             [] {
                                 Loop loop;
                                 return nanosecondsEach(ROUND_TRIPS, [&] { loop.call(); });
                             }},
                            {ONE_PRODUCER, "Qt, queued invokeMethod", "M/s", [] { return posts(1); }},
                            {TWO_PRODUCERS, "Qt, queued invokeMethod", "M/s", [] { return posts(2); }}};
    return cases + payloadCasesOf<Loop>("Qt, queued invokeMethod");
}

} // namespace bench
