#pragma once

#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

struct mg_connection;

namespace simulator {

/// Keeps the places for pages that are alive. Each page is pinged now and then; where nothing whole comes back after
/// some pings the connection is cut, even in the middle of a frame, for which the server would wait for ever. Safe from
/// any thread.
class Heartbeat {
public:
    static constexpr std::chrono::milliseconds PAUSE{5'000};

    /// `pause`: between two pings.
    explicit Heartbeat(std::chrono::milliseconds pause = PAUSE);
    Heartbeat(const Heartbeat&) = delete;
    Heartbeat& operator=(const Heartbeat&) = delete;
    ~Heartbeat();

    void add(mg_connection* connection);

    /// Something whole has come, an answer to a ping or else.
    void heard(const mg_connection* connection);

    /// The connection is about to be gone. Waits for a ping that is being written.
    void remove(const mg_connection* connection);

private:
    class Page;

    void run();
    void beat();

    const std::chrono::milliseconds mPause;
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::map<const mg_connection*, std::shared_ptr<Page>> mPages;
    bool mEnding = false;
    std::thread mThread;
};

} // namespace simulator
