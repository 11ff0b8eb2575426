#include "simulator/rpc/RpcConnection.h"

#include <array>
#include <utility>

namespace simulator {

namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::size_t READ_AT_ONCE = 16'384;

constexpr char ENDED[] = R"({"jsonrpc":"2.0","method":"ended"})";

RpcOutbox::Line lineTo(const PeerSocket& socket)
{
    return {[&socket](std::string_view bytes) { return socket.write(bytes); },
            [&socket] { return socket.waitUntilWritable(); }, [&socket] { socket.end(); }, [&socket] { socket.cut(); }};
}

} // namespace

RpcConnection::RpcConnection(mg_connection* connection, RpcPhone& phone, ScreenWatch& watch, const RpcAbout& about,
                             RpcRendering& rendering, milliseconds heartbeat)
    : mSocket(connection), mRendering(rendering), mHeartbeat(heartbeat), mOutbox(lineTo(mSocket)),
      mMethods(phone, watch, about, [this](const auto& screen, const auto& told) { change(screen, told); })
{
    mSocket.keepLittle();
}

void RpcConnection::run()
{
    std::array<char, READ_AT_ONCE> bytes;
    bool isOpen = mSocket.isThere() && mOutbox.isOpen();
    Time nextBeat = steady_clock::now() + mHeartbeat;
    while (isOpen) {
        const auto pause = duration_cast<milliseconds>(nextBeat - steady_clock::now());
        if (pause <= milliseconds(0) || !mSocket.waitUntilReadable(pause)) {
            isOpen = beat();
            nextBeat = steady_clock::now() + mHeartbeat;
            continue;
        }
        const std::size_t count = mSocket.read(bytes.data(), bytes.size());
        const Time begin = steady_clock::now();
        const auto wantsMore = [&](FrameKind kind, std::string_view data) { return isOpen = hear(kind, data); };
        const CloseCode code = mFrames.take({bytes.data(), count}, wantsMore);
        if (code != CloseCode::NONE)
            finish(code);
        isOpen = isOpen && code == CloseCode::NONE && count > 0;
        nextBeat += steady_clock::now() - begin; // meanwhile no answer to a ping could be heard
    }
    discardTheRest();
    mSocket.cut();
}

/// False where nothing more is wanted.
bool RpcConnection::hear(FrameKind kind, std::string_view data)
{
    if (!mOutbox.isOpen())
        return false;
    mUnanswered = 0;
    switch (kind) {
    case FrameKind::TEXT:
        mMethods.dispatcher().dispatch(
            data, [this](const std::string& answer) { mOutbox.send(frameOf(FrameKind::TEXT, answer)); });
        return true;
    case FrameKind::PING: return mOutbox.send(frameOf(FrameKind::PONG, data)), true;
    case FrameKind::CLOSE:
        mOutbox.send(frameOf(FrameKind::CLOSE, data));
        mOutbox.finish();
        return false;
    default: return true;
    }
}

/// Returns whether the client is still there.
bool RpcConnection::beat()
{
    if (mUnanswered >= MOST_UNANSWERED)
        return mSocket.cut(), false;
    ++mUnanswered;
    mOutbox.send(frameOf(FrameKind::PING, {}));
    return true;
}

void RpcConnection::finish(CloseCode code)
{
    mOutbox.send(closingFrame(code));
    mOutbox.finish();
}

void RpcConnection::tellEnd()
{
    mOutbox.send(frameOf(FrameKind::TEXT, ENDED));
    finish(CloseCode::GOING_AWAY);
}

void RpcConnection::endBy(Time deadline)
{
    mOutbox.waitUntilDone(deadline);
    mSocket.cut();
}

/// Who closes a connection that still has something to be read takes away what he has written last.
void RpcConnection::discardTheRest() const
{
    std::array<char, READ_AT_ONCE> bytes;
    const Time end = steady_clock::now() + RpcOutbox::LAST_WRITES;
    for (Time now = steady_clock::now(); now < end; now = steady_clock::now())
        if (!mSocket.waitUntilReadable(std::chrono::ceil<milliseconds>(end - now)) ||
            mSocket.read(bytes.data(), bytes.size()) == 0)
            return;
}

/// Of several that it has not been told yet it hears the last, and how many there were.
void RpcConnection::change(const ScreenPtr& screen, const RpcMethods::Told& told)
{
    mOutbox.offer([told, number = screen->number, text = mRendering.of(screen)] {
        const std::uint64_t missed = number - std::exchange(*told, number) - 1;
        return frameOf(FrameKind::TEXT, R"({"jsonrpc":"2.0","method":"changed","params":{"missed":)" +
                                            std::to_string(missed) + ",\"screen\":" + *text + "}}");
    });
}

} // namespace simulator
