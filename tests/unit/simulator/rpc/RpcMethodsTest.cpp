#include "simulator/rpc/RpcMethods.h"

#include "host/clock/Clock.h"
#include "host/frontend/Wire.h"
#include "host/input/Keyboard.h"
#include "host/inspection/RequestTrace.h"
#include "host/lcd/Png.h"
#include "simulator/rpc/Base64.h"
#include "unit/simulator/rpc/RpcTest.h"

#include <array>
#include <gmock/gmock.h>

namespace {

using simulator::Json;
using simulator::RpcMethods;
using test::answerTo;
using testing::HasSubstr;

class RpcMethodsTest : public test::RpcTest {
protected:
    Json ask(const std::string& method, const std::string& params = "{}") { return answerTo(methods, method, params); }
    Json result(const std::string& method, const std::string& params = "{}") { return ask(method, params)["result"]; }
    int errorCode(const std::string& method, const std::string& params)
    {
        return ask(method, params).value("/error/code"_json_pointer, 0);
    }

    std::vector<std::uint64_t> heard()
    {
        const std::lock_guard lock(mutex);
        return changes;
    }

    std::mutex mutex;
    std::vector<std::uint64_t> changes;
    RpcMethods methods{*phone, *watch, {"counter", false, "/?token=secret"}, [this](const auto& screen, const auto&) {
                           const std::lock_guard lock(mutex);
                           changes.push_back(screen->number);
                       }};
};

using namespace nlohmann::literals;

TEST_F(RpcMethodsTest, HelloSaysWhoIsThere)
{
    const Json hello = result("hello");
    EXPECT_EQ(hello["version"], 1);
    EXPECT_EQ(hello["program"], "counter");
    EXPECT_EQ(hello["panel"]["width"], host::Lcd::current()->width());
    EXPECT_EQ(hello["language"], "en-GB");
    EXPECT_EQ(hello["readOnly"], false);
    EXPECT_EQ(hello["page"], "/?token=secret");
    EXPECT_EQ(hello["virtualClock"], host::Clock::instance().isVirtual());
    EXPECT_THAT(hello["methods"].dump(), HasSubstr("\"hello\""));
}

TEST_F(RpcMethodsTest, ScreenIsTextAndForm)
{
    const Json screen = result("screen");
    EXPECT_EQ(screen["text"], "object:\nname:Counter\nstring0:0\nend:\n");
    EXPECT_EQ(screen["number"], 1);
    EXPECT_EQ(screen["version"], 1);
    EXPECT_EQ(screen["language"], "en-GB");
    EXPECT_EQ(screen["rows"], Json::array());
}

TEST_F(RpcMethodsTest, KeyIsAnsweredWithTheScreenThatItMade)
{
    EXPECT_EQ(result("screen")["number"], 1);
    EXPECT_EQ(result("press", R"({"key":"down"})"), Json({{"number", 2}}));
    EXPECT_EQ(result("screen")["text"], "object:\nname:Counter\nstring0:1\nend:\n");
    EXPECT_EQ(result("screen")["number"], 2);
    EXPECT_EQ(result("press", R"({"key":"down","times":3})")["number"], 5);
}

TEST_F(RpcMethodsTest, KeysGoDownAndUp)
{
    result("press", R"({"key":"5"})");
    result("type", R"({"text":"1*"})");
    result("hold", R"({"key":"star"})");
    EXPECT_EQ(handledKeys(), "+53-53+49-49+42-42+42");
    result("release", R"({"key":"star"})");
    EXPECT_EQ(handledKeys(), "+53-53+49-49+42-42+42-42");
}

TEST_F(RpcMethodsTest, HeldKeyGoesOnAlongTheVirtualClock)
{
    host::Clock::instance().makeVirtual();
    const auto start = host::Clock::instance().now();
    result("hold", R"({"key":"down","duration":650})");
    EXPECT_EQ(host::Clock::instance().now() - start, 650);
    host::Clock::instance().makeReal();
    EXPECT_EQ(handledKeys(), "+257+257+257-257");
}

TEST_F(RpcMethodsTest, IntervalLiesBetweenPresses)
{
    host::Clock::instance().makeVirtual();
    const auto start = host::Clock::instance().now();
    result("press", R"({"key":"ok","times":3,"interval":200})");
    EXPECT_EQ(host::Clock::instance().now() - start, 400);
    EXPECT_EQ(errorCode("press", R"({"key":"ok","times":1000,"interval":86400000})"), -32602);
    host::Clock::instance().makeReal();
}

TEST_F(RpcMethodsTest, ClientThatGoesLetsGo)
{
    {
        const RpcMethods other(*phone, *watch, {"counter"}, {});
        answerTo(other, "hold", R"({"key":"1"})");
        EXPECT_EQ(handledKeys(), "+49");
    }
    EXPECT_EQ(handledKeys(), "+49-49");
}

TEST_F(RpcMethodsTest, KeyThatAnotherHoldsIsNotPressed)
{
    const RpcMethods other(*phone, *watch, {"counter"}, {});
    answerTo(other, "hold", R"({"key":"down"})");
    EXPECT_EQ(errorCode("press", R"({"key":"down"})"), -32001);
    EXPECT_EQ(handledKeys(), "+257");
}

TEST_F(RpcMethodsTest, WhatHoldsAlreadyIsAnsweredAtOnce)
{
    const Json answer = result("waitFor", R"({"screen":"object:\nname:Counter\nstring0:0\nend:\n"})");
    EXPECT_EQ(answer["held"], true);
    EXPECT_EQ(answer["screen"]["number"], 1);
    EXPECT_FALSE(answer.contains("difference"));
}

TEST_F(RpcMethodsTest, WhatDoesNotComeIsAnsweredWithWhatDiffers)
{
    const Json answer = result("waitFor", R"({"screen":"object:\nname:Counter\nstring0:7\nend:\n","timeout":0})");
    ASSERT_EQ(answer.value("held", true), false);
    EXPECT_EQ(answer["screen"]["text"], screenOf(0));
    EXPECT_EQ(answer["difference"], "- string0:7\n+ string0:0\n");
}

TEST_F(RpcMethodsTest, WhatHasBeenSinceAKeyIsFound)
{
    const auto number = result("press", R"({"key":"down"})")["number"].dump();
    change();
    change();
    const std::string second = R"("screen":"string0:1\n","match":"contains","timeout":50)";
    EXPECT_EQ(result("waitFor", "{" + second + "}")["held"], false);
    EXPECT_EQ(result("waitFor", "{" + second + R"(,"since":)" + number + "}")["held"], true);
}

TEST_F(RpcMethodsTest, SubscriberHearsOfEachChangeBehindTheFirstScreen)
{
    EXPECT_EQ(result("subscribe")["number"], 1);
    change();
    EXPECT_EQ(result("screen")["number"], 2);
    EXPECT_TRUE(test::becomesTrue([this] { return !heard().empty(); }));
    result("unsubscribe");
    change();
    EXPECT_EQ(result("screen")["number"], 3);
    EXPECT_THAT(heard(), testing::ElementsAre(2));
}

TEST_F(RpcMethodsTest, NobodyWaitsForTooMuch)
{
    const auto ignore = [](const std::string&) {};
    for (std::size_t i = 0; i < simulator::ScreenWatch::MOST_WAITS; ++i)
        methods.dispatcher().dispatch(R"({"jsonrpc":"2.0","method":"waitFor","params":{"text":"none"},"id":1})",
                                      ignore);
    EXPECT_EQ(errorCode("waitFor", R"({"text":"none"})"), -32005);
}

TEST_F(RpcMethodsTest, VirtualClockIsMovedByExactlyThat)
{
    EXPECT_EQ(errorCode("advance", R"({"milliseconds":1})"), -32003);
    host::Clock::instance().makeVirtual();
    const std::int64_t start = result("now")["now"];
    EXPECT_EQ(result("advance", R"({"milliseconds":36000001})"), Json({{"number", 1}, {"now", start + 36'000'001}}));
    EXPECT_EQ(result("now"), Json({{"now", start + 36'000'001}, {"virtualClock", true}}));
    host::Clock::instance().makeReal();
}

TEST_F(RpcMethodsTest, WhatTakesLongEndsWhenItsClientHasGone)
{
    host::Clock::instance().makeVirtual();
    constexpr int HOUR = 60 * 60 * 1000;
    int left = 0;
    const RpcMethods leaving(*phone, *watch, {"counter"}, {}, [&left] { return left-- == 0; });
    const std::int64_t start = result("now")["now"];
    left = 3;
    EXPECT_EQ(answerTo(leaving, "advance", R"({"milliseconds":31622400000})")["error"]["code"], -32603);
    EXPECT_EQ(result("now")["now"], start + 3 * HOUR);
    left = 3;
    answerTo(leaving, "press", R"({"key":"down","times":1000})");
    left = 3;
    answerTo(leaving, "type", R"({"text":"1234567890"})");
    left = 3;
    answerTo(leaving, "hold", R"({"key":"up","duration":86400000})");
    host::Clock::instance().makeReal();
    const std::string down = "+" + std::to_string(PK_DOWN) + "-" + std::to_string(PK_DOWN);
    const std::string up = "+" + std::to_string(PK_UP);
    EXPECT_EQ(handledKeys(), down + down + down + "+49-49+50-50+51-51" + up + up + up + up);
}

TEST_F(RpcMethodsTest, ScreenshotIsAPng)
{
    const Json answer = result("screenshot", R"({"scale":2})");
    EXPECT_EQ(answer["number"], 1);
    EXPECT_EQ(answer["png"], simulator::toBase64(host::pngOf(host::Lcd::current()->picture(), 2)));
    EXPECT_THAT(answer["png"], testing::StartsWith("iVBORw0KGgo"));
}

TEST_F(RpcMethodsTest, TraceIsOffUntilItIsSwitchedOn)
{
    EXPECT_EQ(result("trace"), Json::parse(R"({"enabled":false,"records":[],"lost":0})"));
    EXPECT_EQ(result("trace", R"({"enable":true})")["enabled"], true);
    host::RequestTrace& trace = host::RequestTrace::instance();
    trace.purged(trace.queued(typeid(test::CountingThing), 3, true));
    const Json record = result("trace")["records"].at(0);
    EXPECT_EQ(record["facade"], "test::CountingThing");
    EXPECT_EQ(record["code"], "3");
    EXPECT_EQ(record["number"], 3);
    EXPECT_EQ(record["thread"], gettid());
    EXPECT_TRUE(record["threadName"].is_string());
    EXPECT_TRUE(record["queued"].is_number_integer());
    EXPECT_TRUE(record["run"].is_null());
    EXPECT_TRUE(record["done"].is_null());
    EXPECT_EQ(record["waits"], true);
    EXPECT_TRUE(record["purgedBy"].is_string());
    EXPECT_EQ(result("trace", R"({"enable":false})"), Json::parse(R"({"enabled":false,"records":[],"lost":0})"));
}

TEST_F(RpcMethodsTest, InspectTellsWhatTheScreenConsistsOf)
{
    const Json inspected = result("inspect");
    EXPECT_EQ(inspected["complete"], true);
    EXPECT_EQ(inspected["gui"]["doing"], Json());
    EXPECT_EQ(inspected["waiting"], Json::array());
    EXPECT_EQ(inspected["displayables"], Json::array());
    EXPECT_GE(inspected["threads"].size(), 2U);
    EXPECT_TRUE(inspected["counters"]["carriedOut"].is_number_unsigned());
    const Json& root = inspected["widgets"];
    EXPECT_EQ(root["class"], "PRESCPresentationManager");
    EXPECT_EQ(root["rectangle"], Json({0, 0, host::Lcd::current()->width() - 1, host::Lcd::current()->height() - 1}));
    const Json& child = root["children"].at(0);
    EXPECT_EQ(child["class"], "test::CountingThing");
    EXPECT_EQ(child["focus"], true);
    EXPECT_EQ(child["owner"], "");
}

TEST_F(RpcMethodsTest, InspectAnswersWhileTheGuiThreadStands)
{
    std::promise<void> go;
    std::promise<void> stands;
    std::thread standing([&] {
        toolkit.run([&] {
            stands.set_value();
            go.get_future().wait();
        });
    });
    stands.get_future().wait();
    const Json inspected = result("inspect");
    go.set_value();
    standing.join();
    EXPECT_EQ(inspected["complete"], false);
    EXPECT_EQ(inspected["widgets"], Json());
    EXPECT_THAT(inspected["gui"]["state"], testing::AnyOf("busy", "standing"));
    EXPECT_GT(inspected["threads"].size(), 1U);
}

TEST_F(RpcMethodsTest, ActionsAreThoseOfTheProgram)
{
    std::string heard;
    const auto hear = [&](std::string_view line) { return heard = line, line == "no" ? "I will not" : ""; };
    const host::Wire language("language", hear, {{"Deutsch", "de"}});
    const host::Wire exchange("exchange", hear);
    const host::Wire weather("weather", hear);
    const Json hello = result("hello");
    EXPECT_EQ(hello["languages"], Json::parse(R"([{"language":"de","name":"Deutsch"}])"));
    EXPECT_EQ(hello["actions"], Json::parse(R"(["exchange","language","weather"])"));
    const std::vector<std::array<const char*, 3>> cases = {{"setLanguage", R"({"language":"de"})", "de"},
                                                           {"exchange", R"({"line":"4711 calls"})", "4711 calls"},
                                                           {"act", R"({"action":"weather","line":"rain"})", "rain"},
                                                           {"act", R"({"action":"weather"})", ""}};
    for (const auto& [method, params, line] : cases) {
        EXPECT_EQ(result(method, params), Json({{"number", 1}})) << method;
        EXPECT_EQ(heard, line);
    }
    EXPECT_EQ(ask("exchange", R"({"line":"no"})")["error"], Json::parse(R"({"code":-32004,"message":"I will not"})"));
    EXPECT_EQ(errorCode("act", R"({"action":"none"})"), -32004);
}

TEST_F(RpcMethodsTest, NonsenseIsRefused)
{
    const std::vector<std::pair<std::string, std::string>> nonsense = {
        {"hello", R"({"a":1})"},
        {"screen", R"({"a":1})"},
        {"press", R"({})"},
        {"press", R"({"key":"middle"})"},
        {"press", R"({"key":1})"},
        {"press", R"({"key":"ok","times":0})"},
        {"press", R"({"key":"ok","times":1001})"},
        {"press", R"({"key":"ok","interval":-1})"},
        {"press", R"({"key":"ok","count":2})"},
        {"type", R"({"text":""})"},
        {"type", R"({"text":"abc"})"},
        {"type", "{\"text\":\"" + std::string(1001, '1') + "\"}"},
        {"hold", R"({"key":"ok","duration":86400001})"},
        {"hold", R"({"key":"ok","duration":60001})"},
        {"press", R"({"key":"ok","times":4,"interval":20001})"},
        {"type", R"({"text":"123","interval":30001})"},
        {"release", R"({})"},
        {"waitFor", R"({})"},
        {"waitFor", R"({"text":"a","absent":"b"})"},
        {"waitFor", R"({"rows":"a"})"},
        {"waitFor", R"({"rows":["a",1]})"},
        {"waitFor", R"({"rows":["a"],"match":"regex"})"},
        {"waitFor", R"({"screen":"a","selected":true})"},
        {"waitFor", R"({"text":"a","match":"like"})"},
        {"waitFor", R"({"text":"(","match":"regex"})"},
        {"waitFor", "{\"text\":\"" + std::string(1001, 'a') + "\",\"match\":\"regex\"}"},
        {"waitFor", R"({"text":"a","timeout":600001})"},
        {"waitFor", R"({"text":"a","since":-1})"},
        {"subscribe", R"({"a":1})"},
        {"advance", R"({"milliseconds":-1})"},
        {"advance", R"({})"},
        {"screenshot", R"({"scale":9})"},
        {"setLanguage", R"({})"},
        {"exchange", R"({"line":1})"},
        {"act", R"({"line":"a"})"},
        {"now", R"({"a":1})"},
    };
    for (const auto& [method, params] : nonsense)
        EXPECT_EQ(errorCode(method, params), -32602) << method << ' ' << params;
    EXPECT_EQ(handledKeys(), "");
}

TEST_F(RpcMethodsTest, WhoMayOnlyLookPressesNothing)
{
    const RpcMethods looking(*phone, *watch, {"counter", true, "/?token=secret"}, {});
    for (const char* method : {"press", "release", "hold", "type", "advance", "setLanguage", "exchange", "act"})
        EXPECT_EQ(answerTo(looking, method, R"({"key":"ok"})")["error"]["code"], -32002) << method;
    EXPECT_EQ(answerTo(looking, "screen")["result"]["number"], 1);
    EXPECT_EQ(answerTo(looking, "hello")["result"]["readOnly"], true);
    EXPECT_EQ(answerTo(looking, "hello")["result"]["page"], nullptr);
    EXPECT_EQ(handledKeys(), "");
}

TEST_F(RpcMethodsTest, TelephoneThatIsGoneIsTold)
{
    const auto answer = std::make_shared<std::promise<std::string>>();
    methods.dispatcher().dispatch(R"({"jsonrpc":"2.0","method":"waitFor","params":{"text":"none"},"id":1})",
                                  [answer](std::string text) { answer->set_value(std::move(text)); });
    watch->end();
    EXPECT_THAT(answer->get_future().get(), HasSubstr("-32006"));
    EXPECT_EQ(errorCode("waitFor", R"({"text":"none"})"), -32006);
    reader->leave();
    EXPECT_EQ(errorCode("screen", "{}"), -32006);
}

TEST_F(RpcMethodsTest, KeyThatIsNotTakenIsTold)
{
    test::Gate gate;
    toolkit.post([&] { gate.wait(); });
    while (host::Keyboard::instance().press(PK_OK))
        ;
    EXPECT_EQ(errorCode("press", R"({"key":"1"})"), -32001);
    gate.open();
    EXPECT_TRUE(toolkit.waitUntilIdle());
}

} // namespace
