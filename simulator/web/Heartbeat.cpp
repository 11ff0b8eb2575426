#include "simulator/web/Heartbeat.h"

#include "simulator/web/PeerSocket.h"

#include <atomic>
#include <civetweb.h>
#include <pthread.h>
#include <vector>

namespace simulator {

namespace {

constexpr int MOST_UNANSWERED = 3;

} // namespace

class Heartbeat::Page {
public:
    explicit Page(mg_connection* connection) : mConnection(connection), mSocket(connection) {}

    void heard() { mUnanswered = 0; }
    bool isSilent() const { return mUnanswered >= MOST_UNANSWERED; }
    void cut() const { mSocket.cut(); }

    void ping()
    {
        ++mUnanswered;
        const std::lock_guard lock(mWriting);
        if (mConnection != nullptr)
            mg_websocket_write(mConnection, MG_WEBSOCKET_OPCODE_PING, nullptr, 0);
    }

    void detach()
    {
        const std::lock_guard lock(mWriting);
        mConnection = nullptr;
    }

private:
    std::mutex mWriting; ///< guards the connection, which is gone after detach()
    mg_connection* mConnection;
    const PeerSocket mSocket;
    std::atomic<int> mUnanswered{0};
};

Heartbeat::Heartbeat(std::chrono::milliseconds pause) : mPause(pause), mThread([this] { run(); })
{
    pthread_setname_np(mThread.native_handle(), "page-heartbeat");
}

Heartbeat::~Heartbeat()
{
    {
        const std::lock_guard lock(mMutex);
        mEnding = true;
        mChanged.notify_all();
    }
    mThread.join();
}

void Heartbeat::add(mg_connection* connection)
{
    auto page = std::make_shared<Page>(connection);
    const std::lock_guard lock(mMutex);
    mPages[connection] = std::move(page);
}

void Heartbeat::heard(const mg_connection* connection)
{
    const std::lock_guard lock(mMutex);
    if (const auto found = mPages.find(connection); found != mPages.end())
        found->second->heard();
}

void Heartbeat::remove(const mg_connection* connection)
{
    std::unique_lock lock(mMutex);
    const auto page = mPages.extract(connection);
    lock.unlock();
    if (!page.empty())
        page.mapped()->detach();
}

void Heartbeat::run()
{
    std::unique_lock lock(mMutex);
    while (!mChanged.wait_for(lock, mPause, [this] { return mEnding; })) {
        lock.unlock();
        beat();
        lock.lock();
    }
}

/// Writing may take its time: nobody else waits for it.
void Heartbeat::beat()
{
    std::vector<std::shared_ptr<Page>> pages;
    {
        const std::lock_guard lock(mMutex);
        for (const auto& [connection, page] : mPages)
            pages.push_back(page);
    }
    for (const auto& page : pages)
        page->isSilent() ? page->cut() : page->ping();
}

} // namespace simulator
