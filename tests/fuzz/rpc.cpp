// Messages to the test interface, on a telephone on the virtual clock: each is answered once, in JSON-RPC.

#include "fuzz/check.h"
#include "host/clock/Clock.h"
#include "host/frontend/Wire.h"
#include "host/toolkit/Loop.h"
#include "presentation/PRESCPresentationManager.h"
#include "simulator/rpc/RpcMethods.h"
#include "toolkit/PegFunctions.h"
#include "toolkit/PegMessageQueue.h"

#include <atomic>
#include <future>
#include <nlohmann/json.hpp>
#include <optional>
#include <thread>

namespace {

using simulator::Json;
using simulator::RpcMethods;

/// Shows how many keys it has got.
class CountingThing : public PegThing {
public:
    int Message(const PegMessage& message) override
    {
        if (message.wType == PM_KEY)
            ++count;
        return message.wType == PM_KEY ? 0 : PegThing::Message(message);
    }

    std::atomic<int> count = 0;
};

/// A telephone with nothing on it, whose loop runs as long as the process does.
class Telephone {
public:
    Telephone()
    {
        host::Clock::instance().makeVirtual();
        std::promise<void> ready;
        mThread = std::thread([this, &ready] { run(ready); });
        ready.get_future().wait();
        while (!host::Loop::isRunning())
            std::this_thread::yield();
        phone.emplace(*reader, clock, *keys);
        watch.emplace(*reader);
    }

    ~Telephone()
    {
        reader->leave();
        watch.reset();
        keys.reset();
        host::Loop::quit();
        mThread.join();
    }

    simulator::PhoneClock clock;
    std::optional<simulator::KeyPad> keys{std::in_place};
    std::optional<simulator::ScreenReader> reader;
    std::optional<simulator::RpcPhone> phone;
    std::optional<simulator::ScreenWatch> watch;

private:
    void run(std::promise<void>& ready)
    {
        pegInit();
        auto* const thing = new CountingThing;
        gpPresent->Add(thing);
        gpPresent->MoveFocusTree(thing);
        reader.emplace(*host::Lcd::current(), [thing] {
            return simulator::ScreenWords{"object:\nname:Keys\nstring0:" + std::to_string(thing->count) + "\nend:\n",
                                          "en-GB"};
        });
        host::Lcd::current()->setFrameListener([this] { reader->frameReady(); });
        ready.set_value();
        gpPresent->Execute("fuzz");
        host::Lcd::current()->setFrameListener({});
        reader.reset();
        pegCleanUp();
    }

    std::thread mThread;
    const host::Wire mWire{"exchange", [](std::string_view line) { return std::string(line.substr(0, 9)); }};
};

Telephone& telephone()
{
    static Telephone one;
    return one;
}

/// An answer to one request.
void checkAnswer(const Json& answer)
{
    test::check(answer.is_object() && answer.value("jsonrpc", "") == "2.0", "an answer is no JSON-RPC");
    test::check(answer.contains("id") && answer.contains("result") != answer.contains("error"),
                "an answer is neither a result nor an error: " + answer.dump());
    if (answer.contains("error"))
        test::check(answer["error"]["code"].is_number_integer() && answer["error"]["message"].is_string(),
                    "an error without code and message");
    const bool isInternal = answer.contains("error") && answer["error"]["code"] == simulator::RpcError::INTERNAL;
    test::check(!isInternal, "the telephone has failed: " + answer.dump());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Telephone& phone = telephone();
    const auto answers = std::make_shared<std::vector<std::string>>();
    std::mutex mutex;
    {
        const RpcMethods methods(*phone.phone, *phone.watch, {"fuzz"}, [](const auto&, const auto&) {});
        std::string_view left = test::textOf(data, size);
        while (!left.empty()) { // a line is a message, and none is answered twice
            const std::string_view message = left.substr(0, left.find('\n'));
            left.remove_prefix(std::min(message.size() + 1, left.size()));
            const auto times = std::make_shared<std::atomic<int>>(0);
            methods.dispatcher().dispatch(message, [&mutex, answers, times](std::string answer) {
                test::check(++*times == 1, "a message is answered twice");
                const std::lock_guard lock(mutex);
                answers->push_back(std::move(answer));
            });
        }
    }
    for (const std::string& answer : *answers) {
        const Json read = Json::parse(answer, nullptr, false);
        test::check(!read.is_discarded(), "an answer is no JSON: " + answer);
        if (!read.is_array())
            checkAnswer(read);
        else
            for (const Json& each : read)
                checkAnswer(each);
    }
    return 0;
}
