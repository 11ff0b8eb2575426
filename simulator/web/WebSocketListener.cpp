#include "simulator/web/WebSocketListener.h"

#include "simulator/web/PeerSocket.h"

#include <array>

namespace simulator {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::size_t READ_AT_ONCE = 16'384;

} // namespace

WebSocketListener::WebSocketListener(const PeerSocket& socket, std::size_t longest, milliseconds heartbeat)
    : mSocket(socket), mFrames(longest), mHeartbeat(heartbeat)
{
}

CloseCode WebSocketListener::run(const WebSocketFrames::Hear& hear, const std::function<bool()>& ping)
{
    std::array<char, READ_AT_ONCE> bytes;
    bool isOpen = mSocket.isThere();
    Time nextBeat = steady_clock::now() + mHeartbeat;
    while (isOpen) {
        const auto pause = std::chrono::duration_cast<milliseconds>(nextBeat - steady_clock::now());
        if (pause <= milliseconds(0) || !mSocket.waitUntilReadable(pause)) {
            isOpen = beat(ping);
            nextBeat = steady_clock::now() + mHeartbeat;
            continue;
        }
        const std::size_t count = mSocket.read(bytes.data(), bytes.size());
        const Time begin = steady_clock::now();
        const auto wantsMore = [&](FrameKind kind, std::string_view data) {
            mUnanswered = 0;
            return isOpen = hear(kind, data);
        };
        if (const CloseCode code = mFrames.take({bytes.data(), count}, wantsMore); code != CloseCode::NONE)
            return code;
        isOpen = isOpen && count > 0;
        nextBeat += steady_clock::now() - begin; // meanwhile no answer to a ping could be heard
    }
    return CloseCode::NONE;
}

/// Returns whether somebody is still there.
bool WebSocketListener::beat(const std::function<bool()>& ping)
{
    if (mUnanswered >= MOST_UNANSWERED)
        return mSocket.cut(), false;
    ++mUnanswered;
    return ping();
}

} // namespace simulator
