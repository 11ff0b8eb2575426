#pragma once

#include "simulator/core/ScreenWatch.h"
#include "simulator/rpc/RpcDispatcher.h"
#include "simulator/rpc/RpcPhone.h"

#include <string>

namespace simulator {

/// What a client is greeted with, beside what the telephone says itself.
struct RpcAbout {
    std::string program;
    bool isReadOnly = false;
    std::string page{}; ///< where the telephone's page is on this server, with its token
};

/// The methods of docs/test-interface.md for one client.
class RpcMethods {
public:
    static constexpr int VERSION = 1;

    /// The number of the last screen that the client of a subscription has been told; whoever tells it keeps it.
    using Told = std::shared_ptr<std::uint64_t>;
    using Changed = std::function<void(const ScreenPtr&, const Told&)>;

    /// Whether the client has gone.
    using HasGone = std::function<bool()>;

    /// Phone and watch have to outlive it. `changed` is called for each screen of a subscription, and must not block.
    /// Where `hasGone` says so what takes long ends.
    RpcMethods(
        RpcPhone& phone, ScreenWatch& watch, RpcAbout about, Changed changed, HasGone hasGone = [] { return false; });
    RpcMethods(const RpcMethods&) = delete;
    RpcMethods& operator=(const RpcMethods&) = delete;

    /// Lets go of what the client holds; nothing that it waits for is answered any more.
    ~RpcMethods();

    const RpcDispatcher& dispatcher() const { return mDispatcher; }

private:
    using Call = Json (RpcMethods::*)(RpcParams&);

    void add(const std::string& name, Call call);
    void addChanging(const std::string& name, Call call);

    Json hello(RpcParams& params);
    Json page() const;
    Json screen(RpcParams& params);
    Json press(RpcParams& params);
    Json release(RpcParams& params);
    Json hold(RpcParams& params);
    Json type(RpcParams& params);
    Json now(RpcParams& params);
    Json advance(RpcParams& params);
    Json screenshot(RpcParams& params);
    Json setLanguage(RpcParams& params);
    Json exchange(RpcParams& params);
    Json act(RpcParams& params);
    Json say(const std::string& wire, const std::string& line);
    Json trace(RpcParams& params);
    Json inspect(RpcParams& params);
    Json unsubscribe(RpcParams& params);
    void subscribe(RpcParams& params, const RpcAnswer& answer);
    void waitFor(RpcParams& params, const RpcAnswer& answer);
    Json pressAll(const std::vector<PegKey>& keys, std::int64_t interval);
    void endWhereNobodyIsThere() const;

    RpcPhone& mPhone;
    ScreenWatch& mWatch;
    const Changed mChanged;
    const HasGone mHasGone;
    const RpcAbout mAbout;
    RpcDispatcher mDispatcher;
};

} // namespace simulator
