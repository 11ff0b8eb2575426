#pragma once

#include "simulator/rpc/RpcMethods.h"
#include "support/RunningToolkit.h"

#include <atomic>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

namespace test {

/// A thing that has the focus and shows another text each time that the key down is pressed: "0", "1" and so on.
class CountingThing : public RecordingThing {
public:
    int Message(const PegMessage& message) override
    {
        if (message.wType == PM_KEY && message.iData == PK_DOWN)
            count = count + 1;
        return RecordingThing::Message(message);
    }

    std::atomic<int> count = 0;
};

/// A telephone whose loop runs, with somebody at its test interface.
class RpcTest : public testing::Test {
protected:
    RpcTest()
    {
        toolkit.run([this] {
            gpPresent->Add(thing);
            gpPresent->MoveFocusTree(thing);
            reader.emplace(*host::Lcd::current(), [this] { return words(); });
            host::Lcd::current()->setFrameListener([this] { reader->frameReady(); });
        });
        phone.emplace(*reader, clock, keys);
        watch.emplace(*reader);
    }

    ~RpcTest() override
    {
        toolkit.run([this] {
            host::Lcd::current()->setFrameListener({});
            reader->leave();
        });
        watch.reset();
        toolkit.run([this] { reader.reset(); });
    }

    simulator::ScreenWords words()
    {
        ++asked;
        simulator::ScreenWords read{screenOf(thing->count), "en-GB"};
        if (const auto behind = std::exchange(whenRead, {}))
            behind();
        return read;
    }

    /// Another screen, and a frame of it.
    void change()
    {
        toolkit.run([this] {
            ++thing->count;
            host::Lcd::current()->invalidate({0, 0, 9, 9});
        });
    }

    static std::string screenOf(int count)
    {
        return "object:\nname:Counter\nstring0:" + std::to_string(count) + "\nend:\n";
    }

    /// The keys that have been handled so far: "+" and the key for down, "-" for up.
    std::string handledKeys()
    {
        std::string text;
        toolkit.run([&] {
            for (const PegMessage& message : thing->messages)
                if (message.wType == PM_KEY || message.wType == PM_KEYRELEASE)
                    text += (message.wType == PM_KEY ? "+" : "-") + std::to_string(message.iData);
        });
        return text;
    }

    RunningToolkit toolkit;
    CountingThing* thing = new CountingThing;
    std::atomic<int> asked = 0;     ///< how often the screen has been read
    std::function<void()> whenRead; ///< happens on the GUI thread behind the next reading
    simulator::PhoneClock clock;
    simulator::KeyPad keys;
    std::optional<simulator::ScreenReader> reader;
    std::optional<simulator::RpcPhone> phone;
    std::optional<simulator::ScreenWatch> watch;
};

/// What the client of `methods` is answered.
inline simulator::Json answerTo(const simulator::RpcMethods& methods, const std::string& method,
                                const std::string& params = "{}")
{
    const auto answer = std::make_shared<std::promise<std::string>>(); // the one who answers may come back late
    methods.dispatcher().dispatch(R"({"jsonrpc":"2.0","id":1,"method":")" + method + R"(","params":)" + params + "}",
                                  [answer](std::string text) { answer->set_value(std::move(text)); });
    return simulator::Json::parse(answer->get_future().get());
}

} // namespace test
