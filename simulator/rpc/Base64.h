#pragma once

#include <string>
#include <string_view>

namespace simulator {

/// Bytes as JSON carries them: in base64, with padding.
std::string toBase64(std::string_view bytes);

} // namespace simulator
