#include "simulator/rpc/RpcParams.h"

#include "simulator/rpc/RpcError.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace simulator {

namespace {

[[noreturn]] void refuse(const std::string& sentence)
{
    throw RpcError(RpcError::BAD_PARAMS, sentence);
}

std::int64_t numberIn(const std::string& name, const Json& value, std::int64_t least, std::int64_t most)
{
    const bool isWhole = value.is_number_integer();
    const bool isTooLarge = value.is_number_unsigned() && value.get<std::uint64_t>() > INT64_MAX;
    if (!isWhole || isTooLarge || value.get<std::int64_t>() < least || value.get<std::int64_t>() > most)
        refuse("'" + name + "' must be a whole number from " + std::to_string(least) + " to " + std::to_string(most));
    return value.get<std::int64_t>();
}

} // namespace

RpcParams::RpcParams(const Json& params) : mParams(params)
{
    if (!params.is_object() && !params.is_null())
        refuse("parameters go by their names: an object");
}

bool RpcParams::has(const std::string& name)
{
    return find(name) != nullptr;
}

std::string RpcParams::text(const std::string& name)
{
    const Json& value = get(name);
    if (!value.is_string())
        refuse("'" + name + "' must be a text");
    return value.get<std::string>();
}

std::vector<std::string> RpcParams::texts(const std::string& name)
{
    const Json& value = get(name);
    if (!value.is_array() || !std::ranges::all_of(value, [](const Json& each) { return each.is_string(); }))
        refuse("'" + name + "' must be an array of texts");
    return value.get<std::vector<std::string>>();
}

bool RpcParams::flag(const std::string& name, bool preset)
{
    const Json* const value = find(name);
    if (value == nullptr)
        return preset;
    if (!value->is_boolean())
        refuse("'" + name + "' must be true or false");
    return value->get<bool>();
}

std::int64_t RpcParams::number(const std::string& name, std::int64_t preset, std::int64_t least, std::int64_t most)
{
    const Json* const value = find(name);
    return value == nullptr ? preset : numberIn(name, *value, least, most);
}

std::int64_t RpcParams::number(const std::string& name, std::int64_t least, std::int64_t most)
{
    return numberIn(name, get(name), least, most);
}

void RpcParams::end() const
{
    if (!mParams.is_object())
        return;
    for (const auto& [name, value] : mParams.items())
        if (std::ranges::find(mAskedFor, name) == mAskedFor.end())
            refuse("there is no parameter '" + name + "'");
}

const Json* RpcParams::find(const std::string& name)
{
    mAskedFor.push_back(name);
    if (!mParams.is_object())
        return nullptr;
    const auto found = mParams.find(name);
    return found != mParams.end() ? &*found : nullptr;
}

const Json& RpcParams::get(const std::string& name)
{
    const Json* const value = find(name);
    if (value == nullptr)
        refuse("'" + name + "' is missing");
    return *value;
}

} // namespace simulator
