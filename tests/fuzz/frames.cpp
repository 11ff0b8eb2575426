// Bytes that somebody sends over a WebSocket: they are put together to the same messages however they come.

#include "fuzz/check.h"
#include "simulator/web/WebSocketFrames.h"

#include <vector>

namespace {

using simulator::CloseCode;
using simulator::FrameKind;
using simulator::WebSocketFrames;

constexpr std::size_t LONGEST = 65'536;

struct Heard {
    std::vector<std::string> messages;
    CloseCode end = CloseCode::NONE;

    bool operator==(const Heard&) const = default;
};

Heard hear(std::string_view bytes, std::size_t pieces)
{
    Heard heard;
    WebSocketFrames frames(LONGEST);
    const auto note = [&](FrameKind kind, std::string_view data) {
        test::check(data.size() <= LONGEST, "a message is too long");
        heard.messages.push_back(static_cast<char>(kind) + std::string(data));
        return kind != FrameKind::CLOSE;
    };
    while (!bytes.empty() && heard.end == CloseCode::NONE) {
        const auto piece = bytes.substr(0, pieces);
        bytes.remove_prefix(piece.size());
        heard.end = frames.take(piece, note);
        if (!heard.messages.empty() && heard.messages.back()[0] == static_cast<char>(FrameKind::CLOSE))
            break;
    }
    return heard;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes = test::textOf(data, size);
    const Heard whole = hear(bytes, size + 1);
    test::check(whole == hear(bytes, 1), "byte by byte they say something else");
    return 0;
}
