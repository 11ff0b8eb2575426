#include "simulator/web/PageMessage.h"

#include "host/input/Keyboard.h"

#include <charconv>

namespace simulator {

namespace {

using Kind = PageMessage::Kind;

std::optional<PageMessage> keyMessage(Kind kind, std::string_view name)
{
    const auto key = host::Keyboard::keyFromName(name);
    if (!key)
        return {};
    return PageMessage{kind, *key};
}

std::optional<PageMessage> seenMessage(std::string_view text)
{
    PageMessage message{Kind::SEEN};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), message.frame);
    if (error != std::errc() || end != text.data() + text.size())
        return {};
    return message;
}

std::optional<PageMessage> motionMessage(std::string_view text)
{
    if (text != "less" && text != "full")
        return {};
    return PageMessage{.kind = Kind::MOTION, .wantsLessMotion = text == "less"};
}

} // namespace

std::optional<PageMessage> parsePageMessage(std::string_view text)
{
    if (text.starts_with("down "))
        return keyMessage(Kind::DOWN, text.substr(5));
    if (text.starts_with("up "))
        return keyMessage(Kind::UP, text.substr(3));
    if (text.starts_with("seen "))
        return seenMessage(text.substr(5));
    if (text.starts_with("motion "))
        return motionMessage(text.substr(7));
    if (text.starts_with("exchange "))
        return PageMessage{.kind = Kind::EXCHANGE, .line = text.substr(9)};
    return {};
}

} // namespace simulator
