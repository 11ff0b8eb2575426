#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

namespace simulator {

/// What a client is sent. Who sends writes himself what the client takes at once; the rest is written by a thread of
/// the outbox: nobody waits for a client that does not read. One that lets too much lie is cut off. Safe from any
/// thread.
class RpcOutbox {
public:
    /// The way to the client. None may wait but the one that says so.
    struct Line {
        /// Writes what can be written without waiting: so many bytes. Nothing where the client has gone.
        std::function<std::optional<std::size_t>(std::string_view)> write;

        /// Waits until more can be written, or the client has gone. Returns whether it is there.
        std::function<bool()> waitUntilWritable;

        /// There is nothing more to come; what is written arrives.
        std::function<void()> end;

        /// There is nobody any more: whoever waits for the client returns.
        std::function<void()> cut;
    };

    static constexpr std::size_t MOST_WAITING = 256;
    static constexpr std::size_t MOST_BYTES = 4'000'000;
    static constexpr std::chrono::seconds LAST_WRITES{1};

    explicit RpcOutbox(Line line);
    RpcOutbox(const RpcOutbox&) = delete;
    RpcOutbox& operator=(const RpcOutbox&) = delete;

    /// What is finished is written first, where that takes no longer than LAST_WRITES.
    ~RpcOutbox();

    /// A whole frame.
    void send(std::string frame);

    /// A frame that is made when it can be written, behind all that is sent. A later one takes its place where it has
    /// not been made by then. Nothing once it is finished.
    void offer(std::function<std::string()> latest);

    /// Writes what is waiting, and ends the line then; does not wait for it.
    void finish();

    /// Neither finished nor broken off.
    bool isOpen();

    /// Waits until that has been done; at once where it is not finished.
    void waitUntilDone(std::chrono::steady_clock::time_point deadline);

private:
    using Lock = std::unique_lock<std::mutex>;

    void run();
    void write(std::string frame);
    void writeAll();
    bool isTooMuch() const;
    void breakOff();

    const Line mLine;
    std::mutex mMutex; ///< held while something is written, which nobody waits for
    std::condition_variable mChanged;
    std::deque<std::string> mWaiting;
    std::size_t mWritten = 0; ///< of the first of them
    std::function<std::string()> mLatest;
    std::size_t mBytes = 0;
    bool mIsFinished = false;
    bool mIsBroken = false;
    bool mIsDone = false; ///< nothing is written any more
    std::thread mSender;
};

} // namespace simulator
