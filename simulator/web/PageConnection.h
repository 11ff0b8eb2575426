#pragma once

#include "host/frontend/Wire.h"
#include "host/input/CallSigns.h"
#include "simulator/web/FrameMessage.h"

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

struct mg_connection;

namespace simulator {

/// What a page hears besides frames, each time that it changes.
struct News {
    bool standsStill = false; ///< the GUI thread
    std::vector<bool> lamps{};
    std::optional<std::vector<host::Wire::Offer>> exchange{}; ///< what it offers, where there is one
    host::CallSigns signs{};

    friend bool operator==(const News&, const News&) = default;
};

/// One open page. It has at most one frame on its way: the next one goes out when the page has drawn the last. So a
/// page that is slow costs nothing but its own frames, and what lies in the network's buffers stays small.
/// Safe from any thread.
class PageConnection {
public:
    explicit PageConnection(mg_connection* connection) : mConnection(connection) {}

    /// Whether it could take a frame of that number now.
    bool wants(std::uint32_t frame) const;

    /// Whether it has been told something else last.
    bool needsToHear(const News& news) const;

    void send(const FrameMessage& message);
    void sendText(const std::string& message);
    void tell(const News& news);

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
    News mTold; ///< what a page takes for granted at first
    std::string mRows;
};

} // namespace simulator
