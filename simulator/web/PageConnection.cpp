#include "simulator/web/PageConnection.h"

#include "simulator/web/ServerMessages.h"

#include <civetweb.h>
#include <utility>

namespace simulator {

bool PageConnection::wants(std::uint32_t frame) const
{
    std::lock_guard lock(mMutex);
    return !mIsBroken && mSent == mSeen && mSent != frame;
}

bool PageConnection::needsToHear(const News& news) const
{
    std::lock_guard lock(mMutex);
    return !mIsBroken && mTold != news;
}

void PageConnection::send(const FrameMessage& message)
{
    std::lock_guard writing(mWriting);
    {
        std::lock_guard lock(mMutex);
        mSent = message.number;
    }
    if (mRows != message.rows)
        write(MG_WEBSOCKET_OPCODE_TEXT, message.rows);
    write(MG_WEBSOCKET_OPCODE_BINARY, message.pixels);
    mRows = message.rows;
}

void PageConnection::sendText(const std::string& message)
{
    std::lock_guard writing(mWriting);
    write(MG_WEBSOCKET_OPCODE_TEXT, message);
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
    write(MG_WEBSOCKET_OPCODE_TEXT, message);
    write(MG_WEBSOCKET_OPCODE_CONNECTION_CLOSE, {});
}

void PageConnection::seen(std::uint32_t frame)
{
    std::lock_guard lock(mMutex);
    mSeen = frame;
}

void PageConnection::detach()
{
    std::lock_guard writing(mWriting);
    std::lock_guard lock(mMutex);
    mIsBroken = true;
    mConnection = nullptr;
}

bool PageConnection::isBroken() const
{
    std::lock_guard lock(mMutex);
    return mIsBroken;
}

void PageConnection::write(int kind, const std::string& data)
{
    if (isBroken())
        return;
    const bool written = mg_websocket_write(mConnection, kind, data.data(), data.size()) > 0;
    std::lock_guard lock(mMutex);
    mIsBroken = !written;
}

} // namespace simulator
