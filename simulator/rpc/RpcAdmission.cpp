#include "simulator/rpc/RpcAdmission.h"

namespace simulator {

namespace {

std::string_view tokenOf(const Caller& caller)
{
    constexpr std::string_view SCHEME = "Bearer ";
    if (caller.authorization.starts_with(SCHEME))
        return caller.authorization.substr(SCHEME.size());
    return tokenIn(caller.query);
}

} // namespace

bool RpcAdmission::allows(const Caller& caller) const
{
    const bool comesFromHere = caller.origin.empty() || isFromHere(caller);
    return comesFromHere && isNamedRight(caller) && !mToken.empty() && isSameSecret(mToken, tokenOf(caller));
}

bool RpcAdmission::allowsPage(const Caller& caller) const
{
    return caller.query.empty() ? isNamedRight(caller) : allows(caller);
}

bool RpcAdmission::isNamedRight(const Caller& caller) const
{
    return mIsForOthers || isThisMachine(caller.host);
}

} // namespace simulator
