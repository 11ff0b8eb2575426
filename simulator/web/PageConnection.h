#pragma once

#include "host/frontend/Wire.h"
#include "host/input/CallSigns.h"
#include "simulator/web/FrameMessage.h"
#include "simulator/web/PeerSocket.h"
#include "simulator/web/WebSocketFrames.h"

#include <chrono>
#include <cstdint>
#include <functional>
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
    static constexpr std::size_t LONGEST_MESSAGE = 1024;

    explicit PageConnection(mg_connection* connection) : mSocket(connection), mConnection(connection) {}

    /// Hears what the page says, until `hear` wants no more or the page is gone. `heartbeat` lies between two pings.
    /// Then nothing is written any more.
    void listen(std::chrono::milliseconds heartbeat, const std::function<bool(std::string_view)>& hear);

    /// Whether it could take a frame of that number now.
    bool wants(std::uint32_t frame) const;

    /// Whether it has been told something else last.
    bool needsToHear(const News& news) const;

    void send(const FrameMessage& message);
    void sendText(const std::string& message);
    void tell(const News& news);

    /// Tells the page why there is nothing more for it, and closes it: nothing is written any more.
    void sendLast(const std::string& message);

    /// Ends the connection, whatever somebody is waiting for on it.
    void cut() const { mSocket.cut(); }
    void cutAfterThePage() const { mSocket.cutAfterTheOther(); }

    /// The page has drawn the frame.
    void seen(std::uint32_t frame);

private:
    bool answer(FrameKind kind, std::string_view data, const std::function<bool(std::string_view)>& hear);
    bool ping();
    void close(CloseCode code);
    void detach();
    bool isOpen() const;
    void write(FrameKind kind, std::string_view data);

    const PeerSocket mSocket;
    std::mutex mWriting; ///< held while writing; taken before mMutex
    mutable std::mutex mMutex;
    mg_connection* mConnection;
    bool mIsOpen = true; ///< something may be written
    std::uint32_t mSent = 0;
    std::uint32_t mSeen = 0;
    News mTold; ///< what a page takes for granted at first
    std::string mRows;
};

} // namespace simulator
