#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace simulator {

/// What a client is sent, by a thread of its own: nobody waits for a client that does not read. One that lets too much
/// lie is cut off. Safe from any thread.
class RpcOutbox {
public:
    struct Message {
        int kind = 0; ///< the opcode of the frame
        std::string data;
    };

    /// Writes one message and may take its time; false when there is nobody any more. `cut` makes it return.
    using Write = std::function<bool(const Message&)>;

    static constexpr std::size_t MOST_WAITING = 256;
    static constexpr std::size_t MOST_BYTES = 4'000'000;
    static constexpr std::chrono::seconds LAST_WRITES{1};

    RpcOutbox(Write write, std::function<void()> cut);
    RpcOutbox(const RpcOutbox&) = delete;
    RpcOutbox& operator=(const RpcOutbox&) = delete;

    /// What is finished is written first, where that takes no longer than LAST_WRITES.
    ~RpcOutbox();

    void send(Message message);

    /// What is made when it can be written, behind all that is sent. A later one takes its place where it has not been
    /// made by then. Nothing once it is finished.
    void offer(std::function<Message()> latest);

    /// Writes what is waiting, and cuts the connection then; does not wait for it.
    void finish();

    /// Waits until that has been done; at once where it is not finished.
    void waitUntilDone(std::chrono::steady_clock::time_point deadline);

private:
    using Lock = std::unique_lock<std::mutex>;

    void run();
    void writeAll();
    bool isTooMuch() const;
    std::function<Message()> takeNext();

    const Write mWrite;
    const std::function<void()> mCut;
    std::mutex mMutex;
    std::condition_variable mChanged;
    std::deque<Message> mWaiting;
    std::function<Message()> mLatest;
    std::size_t mBytes = 0;
    bool mIsFinished = false;
    bool mIsBroken = false;
    bool mIsDone = false; ///< nothing is written any more
    std::thread mSender;
};

} // namespace simulator
