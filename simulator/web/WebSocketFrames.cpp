#include "simulator/web/WebSocketFrames.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace simulator {

namespace {

constexpr unsigned char LAST_PIECE = 0x80;
constexpr unsigned char RESERVED = 0x70;
constexpr unsigned char KIND = 0x0F;
constexpr unsigned char MASKED = 0x80;
constexpr unsigned char LENGTH = 0x7F;
constexpr unsigned char TWO_BYTES = 126;
constexpr unsigned char EIGHT_BYTES = 127;
constexpr std::size_t LONGEST_CONTROL = 125;
constexpr std::size_t MASK_SIZE = 4;

unsigned char byteAt(std::string_view bytes, std::size_t at)
{
    return static_cast<unsigned char>(bytes[at]);
}

std::uint64_t bigEndian(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (const char byte : bytes)
        number = number << 8U | static_cast<unsigned char>(byte);
    return number;
}

void appendBigEndian(std::string& text, std::uint64_t number, unsigned int bytes)
{
    while (bytes-- > 0)
        text.push_back(static_cast<char>(number >> (8 * bytes)));
}

bool isControl(FrameKind kind)
{
    return kind == FrameKind::CLOSE || kind == FrameKind::PING || kind == FrameKind::PONG;
}

bool isKnown(FrameKind kind)
{
    return kind <= FrameKind::BINARY || isControl(kind);
}

} // namespace

struct WebSocketFrames::Head {
    FrameKind kind = FrameKind::CONTINUATION;
    bool isLast = false;
    bool isPlain = false; ///< no reserved bit
    bool isMasked = false;
    std::uint64_t length = 0;
    std::size_t size = 0; ///< of the head itself, the mask included

    /// Nothing where there is more of it to come.
    static std::optional<Head> in(std::string_view bytes)
    {
        if (bytes.size() < 2)
            return {};
        const unsigned char first = byteAt(bytes, 0);
        const unsigned char second = byteAt(bytes, 1);
        const std::size_t digits = (second & LENGTH) == TWO_BYTES ? 2 : (second & LENGTH) == EIGHT_BYTES ? 8 : 0;
        if (bytes.size() < 2 + digits)
            return {};
        Head head{static_cast<FrameKind>(first & KIND),
                  (first & LAST_PIECE) != 0,
                  (first & RESERVED) == 0,
                  (second & MASKED) != 0,
                  std::uint64_t{second} & LENGTH,
                  2 + digits + MASK_SIZE};
        if (digits != 0)
            head.length = bigEndian(bytes.substr(2, digits));
        return head;
    }
};

std::string frameOf(FrameKind kind, std::string_view data)
{
    std::string frame;
    frame.reserve(data.size() + 2 + sizeof(std::uint64_t));
    frame.push_back(static_cast<char>(LAST_PIECE | static_cast<unsigned char>(kind)));
    if (data.size() < TWO_BYTES) {
        frame.push_back(static_cast<char>(data.size()));
    } else if (data.size() <= UINT16_MAX) {
        frame.push_back(static_cast<char>(TWO_BYTES));
        appendBigEndian(frame, data.size(), 2);
    } else {
        frame.push_back(static_cast<char>(EIGHT_BYTES));
        appendBigEndian(frame, data.size(), 8);
    }
    return frame.append(data);
}

std::string closingData(CloseCode code)
{
    std::string data;
    if (code != CloseCode::NONE)
        appendBigEndian(data, static_cast<std::uint64_t>(code), 2);
    return data;
}

std::string closingFrame(CloseCode code)
{
    return frameOf(FrameKind::CLOSE, closingData(code));
}

CloseCode WebSocketFrames::take(std::string_view bytes, const Hear& hear)
{
    mBytes.append(bytes);
    std::string_view left = mBytes;
    while (const auto head = Head::in(left)) {
        if (const CloseCode code = complaintAbout(*head); code != CloseCode::NONE)
            return code;
        if (left.size() < head->size + head->length)
            break;
        const auto length = static_cast<std::size_t>(head->length);
        const std::string_view mask = left.substr(head->size - MASK_SIZE, MASK_SIZE);
        std::string payload(left.substr(head->size, length));
        for (std::size_t i = 0; i < payload.size(); ++i)
            payload[i] = static_cast<char>(payload[i] ^ mask[i % MASK_SIZE]);
        left.remove_prefix(head->size + length);
        if (!deliver(*head, payload, hear))
            return CloseCode::NONE;
    }
    mBytes.erase(0, mBytes.size() - left.size());
    return CloseCode::NONE;
}

CloseCode WebSocketFrames::complaintAbout(const Head& head) const
{
    if (!head.isPlain || !head.isMasked || !isKnown(head.kind))
        return CloseCode::PROTOCOL_ERROR;
    if (isControl(head.kind))
        return head.isLast && head.length <= LONGEST_CONTROL ? CloseCode::NONE : CloseCode::PROTOCOL_ERROR;
    if (head.kind == FrameKind::BINARY)
        return CloseCode::UNSUPPORTED;
    if (mIsInPieces != (head.kind == FrameKind::CONTINUATION))
        return CloseCode::PROTOCOL_ERROR;
    const bool isTooLong = head.length > mLongest || mMessage.size() + head.length > mLongest;
    return isTooLong ? CloseCode::TOO_BIG : CloseCode::NONE;
}

bool WebSocketFrames::deliver(const Head& head, std::string_view payload, const Hear& hear)
{
    if (isControl(head.kind))
        return hear(head.kind, payload);
    mMessage.append(payload);
    mIsInPieces = !head.isLast;
    if (mIsInPieces)
        return true;
    const std::string message = std::exchange(mMessage, {});
    return hear(FrameKind::TEXT, message);
}

} // namespace simulator
