#include "simulator/web/PageConnection.h"

#include "simulator/web/ServerMessages.h"
#include "simulator/web/WebSocketListener.h"

#include <civetweb.h>
#include <utility>

namespace simulator {

bool PageConnection::wants(std::uint32_t frame) const
{
    std::lock_guard lock(mMutex);
    return mIsOpen && mSent == mSeen && mSent != frame;
}

bool PageConnection::needsToHear(const News& news) const
{
    std::lock_guard lock(mMutex);
    return mIsOpen && mTold != news;
}

void PageConnection::send(const FrameMessage& message)
{
    std::lock_guard writing(mWriting);
    {
        std::lock_guard lock(mMutex);
        mSent = message.number;
    }
    if (mRows != message.rows)
        write(FrameKind::TEXT, message.rows);
    write(FrameKind::BINARY, message.pixels);
    mRows = message.rows;
}

void PageConnection::sendText(const std::string& message)
{
    std::lock_guard writing(mWriting);
    write(FrameKind::TEXT, message);
}

void PageConnection::tell(const News& news)
{
    News before;
    {
        std::lock_guard lock(mMutex);
        before = std::exchange(mTold, news);
    }
    if (before.standsStill != news.standsStill)
        sendText(standingMessage(news.standsStill));
    if (before.lamps != news.lamps)
        sendText(lampsMessage(news.lamps));
    if (before.exchange != news.exchange)
        sendText(exchangeMessage(news.exchange));
    if (before.signs != news.signs)
        sendText(signsMessage(news.signs));
}

void PageConnection::sendLast(const std::string& message)
{
    std::lock_guard writing(mWriting);
    write(FrameKind::TEXT, message);
    write(FrameKind::CLOSE, {});
    std::lock_guard lock(mMutex);
    mIsOpen = false;
}

void PageConnection::listen(std::chrono::milliseconds heartbeat, const std::function<bool(std::string_view)>& hear)
{
    WebSocketListener listener(mSocket, LONGEST_MESSAGE, heartbeat);
    close(listener.run([&](FrameKind kind, std::string_view data) { return answer(kind, data, hear); },
                       [this] { return ping(); }));
    detach();
    mSocket.end();
}

/// False where nothing more is wanted.
bool PageConnection::answer(FrameKind kind, std::string_view data, const std::function<bool(std::string_view)>& hear)
{
    if (kind == FrameKind::TEXT)
        return isOpen() && hear(data);
    if (kind == FrameKind::PING) {
        std::lock_guard writing(mWriting);
        write(FrameKind::PONG, data);
    }
    return kind != FrameKind::CLOSE;
}

/// Returns whether it could be written.
bool PageConnection::ping()
{
    std::lock_guard writing(mWriting);
    write(FrameKind::PING, {});
    return isOpen();
}

void PageConnection::close(CloseCode code)
{
    std::lock_guard writing(mWriting);
    write(FrameKind::CLOSE, closingData(code));
}

void PageConnection::seen(std::uint32_t frame)
{
    std::lock_guard lock(mMutex);
    mSeen = frame;
}

/// From here on the connection may be gone.
void PageConnection::detach()
{
    std::lock_guard writing(mWriting);
    std::lock_guard lock(mMutex);
    mIsOpen = false;
    mConnection = nullptr;
}

bool PageConnection::isOpen() const
{
    std::lock_guard lock(mMutex);
    return mIsOpen;
}

/// REQUIRES: the writing lock is held. Where it fails nothing is written any more.
void PageConnection::write(FrameKind kind, std::string_view data)
{
    if (!isOpen())
        return;
    const bool written = mg_websocket_write(mConnection, static_cast<int>(kind), data.data(), data.size()) > 0;
    std::lock_guard lock(mMutex);
    mIsOpen = mIsOpen && written;
}

} // namespace simulator
