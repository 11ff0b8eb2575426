#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace simulator {

/// The frames of a WebSocket.
enum class FrameKind : unsigned char { CONTINUATION = 0, TEXT = 1, BINARY = 2, CLOSE = 8, PING = 9, PONG = 10 };

/// Why a connection is closed.
enum class CloseCode : int {
    NONE = 0,
    GOING_AWAY = 1001,
    PROTOCOL_ERROR = 1002,
    UNSUPPORTED = 1003,
    TOO_BIG = 1009,
    TRY_LATER = 1013
};

/// A frame as a server sends it.
std::string frameOf(FrameKind kind, std::string_view data);

/// What is in a closing frame; nothing where there is nothing to complain of.
std::string closingData(CloseCode code);
std::string closingFrame(CloseCode code);

/// Puts messages together from the bytes that a client sends, in pieces of any size. A message that is too long is
/// refused when its length is known, before it has come.
class WebSocketFrames {
public:
    /// How long a message may be.
    explicit WebSocketFrames(std::size_t longest) : mLongest(longest) {}

    /// Hears a text, whole, or a PING, PONG or CLOSE. Returns whether it wants to hear more.
    using Hear = std::function<bool(FrameKind, std::string_view)>;

    /// Why the connection has to end; nothing more may be taken then.
    CloseCode take(std::string_view bytes, const Hear& hear);

private:
    struct Head;

    CloseCode complaintAbout(const Head& head) const;
    bool deliver(const Head& head, std::string_view payload, const Hear& hear);

    const std::size_t mLongest;
    std::string mBytes;   ///< what is no whole frame yet
    std::string mMessage; ///< its pieces so far
    bool mIsInPieces = false;
};

} // namespace simulator
