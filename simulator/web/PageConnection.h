#pragma once

#include "simulator/web/FrameMessage.h"

#include <cstdint>
#include <mutex>
#include <string>

struct mg_connection;

namespace simulator {

/// One open page. It has at most one frame on its way: the next one goes out when the page has drawn the last. So a
/// page that is slow costs nothing but its own frames, and what lies in the network's buffers stays small.
/// Safe from any thread.
class PageConnection {
public:
    explicit PageConnection(mg_connection* connection) : mConnection(connection) {}

    /// Whether it could take a frame of that number now.
    bool wants(std::uint32_t frame) const;

    /// Whether it has not been told yet that the GUI thread stands still, or that it goes on.
    bool needsToHear(bool standsStill) const;

    void send(const FrameMessage& message);
    void sendText(const std::string& message);
    void tell(bool standsStill);

    /// Tells the page why there is nothing more for it, and closes it.
    void sendLast(const std::string& message);

    /// The page has drawn the frame.
    void seen(std::uint32_t frame);

    /// The connection is about to be gone. Waits for what is being written.
    void detach();

    /// Whether writing has failed: then nothing is written any more.
    bool isBroken() const;

private:
    void write(int kind, const std::string& data);

    std::mutex mWriting; ///< held while writing; taken before mMutex
    mutable std::mutex mMutex;
    mg_connection* mConnection;
    bool mIsBroken = false;
    std::uint32_t mSent = 0;
    std::uint32_t mSeen = 0;
    bool mToldStandsStill = false;
    std::string mRows;
};

} // namespace simulator
