#include "simulator/rpc/Base64.h"

namespace simulator {

std::string toBase64(std::string_view bytes)
{
    constexpr std::string_view DIGITS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t GROUP = 3;
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += GROUP) {
        const std::string_view group = bytes.substr(i, GROUP);
        unsigned int bits = 0;
        for (std::size_t k = 0; k < GROUP; ++k)
            bits = bits << 8U | (k < group.size() ? static_cast<unsigned char>(group[k]) : 0U);
        for (std::size_t k = 0; k <= GROUP; ++k)
            text.push_back(k <= group.size() ? DIGITS[bits >> (6 * (GROUP - k)) & 63U] : '=');
    }
    return text;
}

} // namespace simulator
