#include "simulator/rpc/RpcDispatcher.h"

#include <memory>
#include <mutex>
#include <nlohmann/json.hpp>
#include <optional>

namespace simulator {

namespace {

/// What is sent where nothing is to be answered, and the parameters where none are given.
const Json SILENCE;

Json errorMessage(const RpcError& error, const Json& id)
{
    return {{"jsonrpc", "2.0"}, {"error", {{"code", error.code()}, {"message", error.what()}}}, {"id", id}};
}

Json resultMessage(Json result, const Json& id)
{
    return {{"jsonrpc", "2.0"}, {"result", std::move(result)}, {"id", id}};
}

RpcError noRequest(const std::string& sentence)
{
    return {RpcError::NO_REQUEST, sentence};
}

bool isId(const Json& id)
{
    return id.is_string() || id.is_number() || id.is_null();
}

/// Null where there is none.
const Json* memberOf(const Json& request, const char* name)
{
    const auto found = request.find(name);
    return found != request.end() ? &*found : nullptr;
}

/// What is wrong with the request itself.
std::optional<RpcError> complaintAbout(const Json& request)
{
    if (!request.is_object())
        return noRequest("a request is an object");
    if (const Json* const version = memberOf(request, "jsonrpc"); version == nullptr || *version != "2.0")
        return noRequest("'jsonrpc' must be \"2.0\"");
    if (!request.contains("method") || !request["method"].is_string())
        return noRequest("'method' must be a text");
    if (request.contains("id") && !isId(request["id"]))
        return noRequest("'id' must be a text, a number or null");
    return {};
}

Json idOf(const Json& request)
{
    const bool hasId = request.is_object() && request.contains("id") && isId(request["id"]);
    return hasId ? request["id"] : Json();
}

/// Whoever answers first counts; a request without an id hears nothing.
RpcAnswer answerFor(const Json& request, std::function<void(Json)> done)
{
    if (!request.contains("id"))
        return {[done](const Json&) { done(SILENCE); }, [done](const RpcError&) { done(SILENCE); }};
    const Json id = idOf(request);
    return {[=](Json result) { done(resultMessage(std::move(result), id)); },
            [=](const RpcError& error) { done(errorMessage(error, id)); }};
}

/// Collects the answers of a batch.
class Batch {
public:
    Batch(std::size_t size, std::function<void(std::string)> send) : mLeft(size), mSend(std::move(send)) {}

    void add(Json answer)
    {
        const std::lock_guard lock(mMutex);
        if (answer != SILENCE)
            mAnswers.push_back(std::move(answer));
        if (--mLeft == 0 && !mAnswers.empty())
            mSend(RpcDispatcher::toText(mAnswers));
    }

private:
    std::mutex mMutex;
    std::size_t mLeft;
    Json mAnswers = Json::array();
    std::function<void(std::string)> mSend;
};

/// What lies deeper is left out: who copies or compares JSON goes down as deep as it is, on a thread with little stack.
Json parse(std::string_view message, bool& isTooDeep)
{
    const auto keep = [&isTooDeep](int depth, Json::parse_event_t event, const Json&) {
        const bool opens = event == Json::parse_event_t::object_start || event == Json::parse_event_t::array_start;
        const bool isHere = opens && depth >= RpcDispatcher::DEEPEST;
        isTooDeep = isTooDeep || isHere;
        return !isHere;
    };
    return Json::parse(message, keep, false);
}

std::string complaintAboutBatch(const Json& batch)
{
    if (batch.empty())
        return "a batch has at least one request";
    if (batch.size() > RpcDispatcher::MOST_IN_A_BATCH)
        return "a batch has at most " + std::to_string(RpcDispatcher::MOST_IN_A_BATCH) + " requests";
    return {};
}

} // namespace

void RpcDispatcher::add(const std::string& name, Method method)
{
    addSlow(name, [method = std::move(method)](RpcParams& params, const RpcAnswer& answer) {
        answer.result(method(params));
    });
}

void RpcDispatcher::addSlow(const std::string& name, SlowMethod method)
{
    mMethods[name] = std::move(method);
}

std::vector<std::string> RpcDispatcher::names() const
{
    std::vector<std::string> all;
    for (const auto& [name, method] : mMethods)
        all.push_back(name);
    return all;
}

void RpcDispatcher::dispatch(std::string_view message, std::function<void(std::string)> send) const
{
    bool isTooDeep = false;
    const Json parsed = parse(message, isTooDeep);
    if (parsed.is_discarded())
        return send(toText(errorMessage({RpcError::NO_JSON, "this is no JSON"}, {})));
    if (isTooDeep)
        return send(toText(errorMessage({RpcError::NO_JSON, "this is nested too deeply"}, {})));
    if (!parsed.is_array())
        return handle(parsed, [send = std::move(send)](const Json& answer) {
            if (answer != SILENCE)
                send(toText(answer));
        });
    if (const std::string complaint = complaintAboutBatch(parsed); !complaint.empty())
        return send(toText(errorMessage(noRequest(complaint), {})));
    const auto batch = std::make_shared<Batch>(parsed.size(), std::move(send));
    for (const Json& request : parsed)
        handle(request, [batch](Json answer) { batch->add(std::move(answer)); });
}

std::string RpcDispatcher::toText(const Json& message)
{
    return message.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void RpcDispatcher::handle(const Json& request, std::function<void(Json)> done) const
{
    if (const auto complaint = complaintAbout(request))
        return done(errorMessage(*complaint, idOf(request)));
    const RpcAnswer answer = answerFor(request, std::move(done));
    try {
        run(request, answer);
    } catch (const RpcError& error) {
        answer.error(error);
    } catch (const std::exception& failure) {
        answer.error({RpcError::INTERNAL, std::string("the telephone has failed: ") + failure.what()});
    }
}

void RpcDispatcher::run(const Json& request, const RpcAnswer& answer) const
{
    const std::string name = request["method"];
    const auto method = mMethods.find(name);
    if (method == mMethods.end())
        throw RpcError(RpcError::NO_METHOD, "there is no method '" + name + "'");
    const Json* const given = memberOf(request, "params");
    RpcParams params(given != nullptr ? *given : SILENCE);
    method->second(params, answer);
}

} // namespace simulator
