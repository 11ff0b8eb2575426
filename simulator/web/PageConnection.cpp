#include "simulator/web/PageConnection.h"

#include "simulator/web/ServerMessages.h"

#include <civetweb.h>

namespace simulator {

bool PageConnection::wants(std::uint32_t frame) const
{
    std::lock_guard lock(mMutex);
    return !mIsBroken && mSent == mSeen && mSent != frame;
}

bool PageConnection::needsToHear(bool standsStill) const
{
    std::lock_guard lock(mMutex);
    return !mIsBroken && mToldStandsStill != standsStill;
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

void PageConnection::tell(bool standsStill)
{
    {
        std::lock_guard lock(mMutex);
        mToldStandsStill = standsStill;
    }
    sendText(standingMessage(standsStill));
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
