#pragma once

#include "simulator/rpc/RpcAnswer.h"
#include "simulator/rpc/RpcParams.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// JSON-RPC 2.0: from a message to its methods, and from what they answer to a message. Add all methods first; from
/// then on it may be used by any thread.
class RpcDispatcher {
public:
    /// Has to ask for all its parameters. An RpcError is its answer, another exception is told as INTERNAL.
    using Method = std::function<Json(RpcParams&)>;

    /// One that answers when it can. An RpcError that is thrown is its answer too.
    using SlowMethod = std::function<void(RpcParams&, RpcAnswer)>;

    static constexpr std::size_t MOST_IN_A_BATCH = 100;

    /// So many objects and arrays lie in each other at most.
    static constexpr int DEEPEST = 32;

    void add(const std::string& name, Method method);
    void addSlow(const std::string& name, SlowMethod method);

    /// In the order of the alphabet.
    std::vector<std::string> names() const;

    /// Carries out a request, a notification or a batch. `send` gets the one message that answers it when all of it is
    /// answered, on whatever thread that happens; none where nothing asks for an answer.
    void dispatch(std::string_view message, std::function<void(std::string)> send) const;

    /// As it goes over the wire: in UTF-8, where a text is none with U+FFFD.
    static std::string toText(const Json& message);

private:
    void handle(const Json& request, std::function<void(Json)> done) const;
    void run(const Json& request, const RpcAnswer& answer) const;

    std::map<std::string, SlowMethod> mMethods;
};

} // namespace simulator
