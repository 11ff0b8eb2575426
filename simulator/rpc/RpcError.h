#pragma once

#include <stdexcept>
#include <string>

namespace simulator {

/// Why nothing comes of a request: one of the codes of docs/test-interface.md, and a sentence.
class RpcError : public std::runtime_error {
public:
    // JSON-RPC 2.0's own.
    static constexpr int NO_JSON = -32700;
    static constexpr int NO_REQUEST = -32600;
    static constexpr int NO_METHOD = -32601;
    static constexpr int BAD_PARAMS = -32602;
    static constexpr int INTERNAL = -32603;

    // The telephone's.
    static constexpr int NO_ANSWER = -32000;
    static constexpr int NOT_TAKEN = -32001;
    static constexpr int READ_ONLY = -32002;
    static constexpr int REAL_CLOCK = -32003;
    static constexpr int REFUSED = -32004;
    static constexpr int TOO_MANY = -32005;
    static constexpr int HAS_ENDED = -32006;

    RpcError(int code, const std::string& sentence) : std::runtime_error(sentence), mCode(code) {}

    int code() const { return mCode; }

private:
    int mCode;
};

} // namespace simulator
