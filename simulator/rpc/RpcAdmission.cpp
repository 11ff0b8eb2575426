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
    const bool isNamedRight = mIsForOthers || isThisMachine(caller.host);
    return comesFromHere && isNamedRight && !mToken.empty() && isSameSecret(mToken, tokenOf(caller));
}

} // namespace simulator
