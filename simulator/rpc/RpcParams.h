#pragma once

#include "simulator/screen/Json.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

/// The parameters of a request, by name. What is missing, of another type or out of bounds is an RpcError, and so is
/// one that nobody has asked for.
class RpcParams {
public:
    explicit RpcParams(const Json& params);
    RpcParams(const RpcParams&) = delete;
    RpcParams& operator=(const RpcParams&) = delete;

    bool has(const std::string& name);
    std::string text(const std::string& name);
    std::vector<std::string> texts(const std::string& name);
    bool flag(const std::string& name, bool preset);
    std::int64_t number(const std::string& name, std::int64_t preset, std::int64_t least, std::int64_t most);
    std::int64_t number(const std::string& name, std::int64_t least, std::int64_t most);

    /// Everything has been asked for.
    void end() const;

private:
    const Json* find(const std::string& name);
    const Json& get(const std::string& name);

    const Json& mParams;
    std::vector<std::string> mAskedFor;
};

} // namespace simulator
