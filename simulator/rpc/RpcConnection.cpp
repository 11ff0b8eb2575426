#include "simulator/rpc/RpcConnection.h"

#include <utility>

namespace simulator {

namespace {

constexpr char ENDED[] = R"({"jsonrpc":"2.0","method":"ended"})";

RpcOutbox::Line lineTo(const PeerSocket& socket)
{
    return {[&socket](std::string_view bytes) { return socket.write(bytes); },
            [&socket] { return socket.waitUntilWritable(); }, [&socket] { socket.end(); }, [&socket] { socket.cut(); }};
}

} // namespace

RpcConnection::RpcConnection(mg_connection* connection, RpcPhone& phone, ScreenWatch& watch, const RpcAbout& about,
                             RpcRendering& rendering, std::chrono::milliseconds heartbeat)
    : mSocket(connection), mRendering(rendering), mListener(mSocket, LONGEST_MESSAGE, heartbeat),
      mOutbox(lineTo(mSocket)),
      mMethods(
          phone, watch, about, [this](const auto& screen, const auto& told) { change(screen, told); },
          [this] { return mSocket.isEnded(); })
{
    mSocket.keepLittle();
}

void RpcConnection::run()
{
    if (mOutbox.isOpen()) {
        const auto ping = [this] { return mOutbox.send(frameOf(FrameKind::PING, {})), true; };
        const CloseCode code = mListener.run([this](auto kind, auto data) { return hear(kind, data); }, ping);
        if (code != CloseCode::NONE)
            finish(code);
    }
    mSocket.cutAfterTheOther();
}

/// False where nothing more is wanted.
bool RpcConnection::hear(FrameKind kind, std::string_view data)
{
    if (!mOutbox.isOpen())
        return false;
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
