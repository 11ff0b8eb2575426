#include "simulator/rpc/RpcDispatcher.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using simulator::Json;
using simulator::RpcAnswer;
using simulator::RpcDispatcher;
using simulator::RpcError;
using simulator::RpcParams;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class RpcDispatcherTest : public testing::Test {
protected:
    RpcDispatcherTest()
    {
        dispatcher.add("add", [](RpcParams& params) -> Json {
            const auto sum = params.number("a", 0, 100) + params.number("b", 7, 0, 100);
            params.end();
            return sum;
        });
        dispatcher.add("say", [this](RpcParams& params) -> Json { return said = params.text("text"); });
        dispatcher.add("fail", [](RpcParams&) -> Json { throw RpcError(-32000, "no"); });
        dispatcher.addSlow("later", [this](RpcParams&, RpcAnswer answer) { later = std::move(answer); });
    }

    std::vector<std::string> answersTo(const std::string& message)
    {
        sent.clear();
        dispatcher.dispatch(message, [this](std::string text) { sent.push_back(std::move(text)); });
        return sent;
    }

    RpcDispatcher dispatcher;
    RpcAnswer later;
    std::string said;
    std::vector<std::string> sent;
};

std::string error(int code, const std::string& sentence, const std::string& id = "null")
{
    return R"({"jsonrpc":"2.0","error":{"code":)" + std::to_string(code) + R"(,"message":")" + sentence +
           R"("},"id":)" + id + "}";
}

TEST_F(RpcDispatcherTest, EachMessageHasItsAnswer)
{
    const std::string noRequest = error(-32600, "a request is an object");
    const std::vector<std::pair<std::string, std::string>> cases = {
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":2,"b":3},"id":1})", R"({"jsonrpc":"2.0","result":5,"id":1})"},
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":2},"id":"x"})", R"({"jsonrpc":"2.0","result":9,"id":"x"})"},
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":2},"id":null})", R"({"jsonrpc":"2.0","result":9,"id":null})"},
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":2},"id":1.5})", R"({"jsonrpc":"2.0","result":9,"id":1.5})"},
        {R"({"jsonrpc":"2.0","method":"fail","id":1})", error(-32000, "no", "1")},
        {"", error(-32700, "this is no JSON")},
        {"hello", error(-32700, "this is no JSON")},
        {"{\"jsonrpc\":\"2.0\",\"method\":\"say\xFF\"", error(-32700, "this is no JSON")},
        {std::string(60'000, '['), error(-32700, "this is no JSON")},
        {"1", noRequest},
        {"null", noRequest},
        {"[]", error(-32600, "a batch has at least one request")},
        {"[1]", "[" + noRequest + "]"},
        {"{}", error(-32600, R"('jsonrpc' must be \"2.0\")")},
        {R"({"jsonrpc":2,"method":"add","id":1})", error(-32600, R"('jsonrpc' must be \"2.0\")", "1")},
        {R"({"jsonrpc":"2.0","id":1})", error(-32600, "'method' must be a text", "1")},
        {R"({"jsonrpc":"2.0","method":1,"id":1})", error(-32600, "'method' must be a text", "1")},
        {R"({"jsonrpc":"2.0","method":"add","id":[]})", error(-32600, "'id' must be a text, a number or null")},
        {R"({"jsonrpc":"2.0","method":"none","id":1})", error(-32601, "there is no method 'none'", "1")},
        {R"({"jsonrpc":"2.0","method":"add","id":1})", error(-32602, "'a' is missing", "1")},
        {R"({"jsonrpc":"2.0","method":"add","params":[1],"id":1})",
         error(-32602, "parameters go by their names: an object", "1")},
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":101},"id":1})",
         error(-32602, "'a' must be a whole number from 0 to 100", "1")},
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":18446744073709551615},"id":1})",
         error(-32602, "'a' must be a whole number from 0 to 100", "1")},
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":1.5},"id":1})",
         error(-32602, "'a' must be a whole number from 0 to 100", "1")},
        {R"({"jsonrpc":"2.0","method":"add","params":{"a":1,"c":1},"id":1})",
         error(-32602, "there is no parameter 'c'", "1")},
        {R"({"jsonrpc":"2.0","method":"say","params":{"text":7},"id":1})", error(-32602, "'text' must be a text", "1")},
    };
    for (const auto& [message, answer] : cases)
        EXPECT_THAT(answersTo(message), ElementsAre(answer)) << message.substr(0, 100);
}

/// A call of "say" whose only parameter has so many arrays around nothing.
std::string nested(int arrays)
{
    const auto count = static_cast<std::size_t>(arrays);
    return R"({"jsonrpc":"2.0","method":"say","id":1,"params":{"text":)" + std::string(count, '[') +
           std::string(count, ']') + "}}";
}

TEST_F(RpcDispatcherTest, NestingHasALimit)
{
    const int deepest = RpcDispatcher::DEEPEST - 2; // in the request and its parameters
    EXPECT_THAT(answersTo(nested(deepest)), ElementsAre(error(-32602, "'text' must be a text", "1")));
    for (const int arrays : {deepest + 1, 20'000})
        EXPECT_THAT(answersTo(nested(arrays)), ElementsAre(error(-32700, "this is nested too deeply")));
}

TEST_F(RpcDispatcherTest, MethodThatFailsIsAnswered)
{
    dispatcher.add("break", [](RpcParams&) -> Json { throw std::out_of_range("far off"); });
    EXPECT_THAT(answersTo(R"({"jsonrpc":"2.0","method":"break","id":1})"),
                ElementsAre(error(-32603, "the telephone has failed: far off", "1")));
}

TEST_F(RpcDispatcherTest, NotificationIsCarriedOutInSilence)
{
    EXPECT_THAT(answersTo(R"({"jsonrpc":"2.0","method":"say","params":{"text":"hush"}})"), IsEmpty());
    EXPECT_EQ(said, "hush");
    EXPECT_THAT(answersTo(R"({"jsonrpc":"2.0","method":"none"})"), IsEmpty());
}

TEST_F(RpcDispatcherTest, BatchIsAnsweredInOnePieceWithoutItsNotifications)
{
    EXPECT_THAT(answersTo(R"([{"jsonrpc":"2.0","method":"add","params":{"a":1},"id":1},
                              {"jsonrpc":"2.0","method":"say","params":{"text":"a"}},
                              {"jsonrpc":"2.0","method":"fail","id":2}])"),
                ElementsAre(R"([{"jsonrpc":"2.0","result":8,"id":1},)" + error(-32000, "no", "2") + "]"));
    EXPECT_THAT(answersTo(R"([{"jsonrpc":"2.0","method":"say","params":{"text":"b"}}])"), IsEmpty());
    EXPECT_EQ(said, "b");
}

TEST_F(RpcDispatcherTest, BatchWaitsForItsLastAnswer)
{
    EXPECT_THAT(answersTo(R"([{"jsonrpc":"2.0","method":"later","id":1},
                              {"jsonrpc":"2.0","method":"add","params":{"a":1},"id":2}])"),
                IsEmpty());
    later.result("done");
    EXPECT_THAT(sent, ElementsAre(R"([{"jsonrpc":"2.0","result":8,"id":2},{"jsonrpc":"2.0","result":"done","id":1}])"));
}

TEST_F(RpcDispatcherTest, BatchHasALimit)
{
    std::string batch = "[1";
    for (std::size_t i = 0; i < RpcDispatcher::MOST_IN_A_BATCH; ++i)
        batch += ",1";
    EXPECT_THAT(answersTo(batch + "]"), ElementsAre(error(-32600, "a batch has at most 100 requests")));
}

TEST_F(RpcDispatcherTest, LateErrorIsAnAnswer)
{
    EXPECT_THAT(answersTo(R"({"jsonrpc":"2.0","method":"later","id":1})"), IsEmpty());
    later.error({-32004, "no"});
    EXPECT_THAT(sent, ElementsAre(error(-32004, "no", "1")));
}

TEST_F(RpcDispatcherTest, TextThatIsNoUtf8IsReplaced)
{
    EXPECT_EQ(RpcDispatcher::toText(Json("a\xC3(")), "\"a\uFFFD(\"");
}

TEST_F(RpcDispatcherTest, MethodsHaveNames)
{
    EXPECT_THAT(dispatcher.names(), ElementsAre("add", "fail", "later", "say"));
}

} // namespace
