#include "simulator/rpc/RpcMethods.h"

#include "host/Phone.h"
#include "host/clock/Clock.h"
#include "host/frontend/Wire.h"
#include "host/input/Keyboard.h"
#include "host/inspection/RequestTrace.h"
#include "host/lcd/Png.h"
#include "simulator/rpc/Base64.h"
#include "simulator/rpc/RpcCondition.h"
#include "simulator/rpc/RpcInspection.h"
#include "simulator/rpc/RpcScreen.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace simulator {

namespace {

constexpr std::int64_t HOUR = 60 * 60 * 1000;
constexpr std::int64_t DAY = 24 * HOUR;
constexpr std::int64_t MOST_PRESSES = 1000;
constexpr std::size_t LONGEST_TYPED = 1000;

/// A real clock's time passes on the connection's thread, which does not hear meanwhile that its client has gone.
constexpr std::int64_t LONGEST_REST = 60 * 1000;

void refuseLongRest(std::int64_t milliseconds)
{
    const bool isVirtual = host::Clock::instance().isVirtual();
    if (milliseconds > (isVirtual ? DAY : LONGEST_REST))
        throw RpcError(RpcError::BAD_PARAMS,
                       isVirtual ? "that takes more than a day" : "that takes more than a minute of real time");
}

PegKey keyIn(RpcParams& params)
{
    const std::string name = params.text("key");
    if (const auto key = host::Keyboard::keyFromName(name))
        return *key;
    throw RpcError(RpcError::BAD_PARAMS, "there is no key '" + name + "'");
}

std::vector<PegKey> keysOf(const std::string& text)
{
    std::vector<PegKey> keys;
    for (const char character : text) {
        if (!isOfKeypad(character))
            throw RpcError(RpcError::BAD_PARAMS, "only 0 to 9, * and # can be typed");
        keys.push_back(static_cast<PegKey>(character));
    }
    if (keys.empty() || keys.size() > LONGEST_TYPED)
        throw RpcError(RpcError::BAD_PARAMS, "'text' must have 1 to " + std::to_string(LONGEST_TYPED) + " characters");
    return keys;
}

constexpr std::int64_t LONGEST_WAIT = 10 * 60 * 1000;
constexpr std::int64_t USUAL_WAIT = 5 * 1000;
constexpr std::int64_t LAST_NUMBER = std::int64_t{1} << 53; // as far as numbers of JSON are whole

/// Answers a client that has waited.
void tellVerdict(const RpcAnswer& answer, const ScreenWatch::Verdict& verdict)
{
    using enum ScreenWatch::End;
    if (verdict.end == GONE)
        return answer.error({RpcError::HAS_ENDED, "the application has ended"});
    if (verdict.screen == nullptr)
        return answer.error({RpcError::NO_ANSWER, "the application does not answer: its GUI thread stands still"});
    Json result = {{"held", verdict.end == HELD}, {"screen", screenAnswer(*verdict.screen)}};
    if (verdict.end == LAPSED)
        result["difference"] = verdict.difference;
    answer.result(std::move(result));
}

/// The wire that changes the language of a program which has several.
constexpr char LANGUAGE[] = "language";

Json offersJson(const char* wire)
{
    Json all = Json::array();
    for (const host::Wire::Offer& offer : host::Wire::offers(wire))
        all.push_back({{"language", offer.line}, {"name", offer.label}});
    return all;
}

std::int64_t clockNow()
{
    return host::Clock::instance().now();
}

Json numberOf(const ScreenPtr& screen)
{
    return {{"number", screen->number}};
}

} // namespace

RpcMethods::RpcMethods(RpcPhone& phone, ScreenWatch& watch, RpcAbout about, Changed changed, HasGone hasGone)
    : mPhone(phone), mWatch(watch), mChanged(std::move(changed)), mHasGone(std::move(hasGone)), mAbout(std::move(about))
{
    mWatch.join(this);
    add("hello", &RpcMethods::hello);
    add("screen", &RpcMethods::screen);
    addChanging("press", &RpcMethods::press);
    addChanging("release", &RpcMethods::release);
    addChanging("hold", &RpcMethods::hold);
    addChanging("type", &RpcMethods::type);
    add("now", &RpcMethods::now);
    add("screenshot", &RpcMethods::screenshot);
    addChanging("advance", &RpcMethods::advance);
    addChanging("setLanguage", &RpcMethods::setLanguage);
    addChanging("exchange", &RpcMethods::exchange);
    addChanging("act", &RpcMethods::act);
    add("trace", &RpcMethods::trace);
    add("inspect", &RpcMethods::inspect);
    add("unsubscribe", &RpcMethods::unsubscribe);
    mDispatcher.addSlow("subscribe", [this](RpcParams& params, const RpcAnswer& answer) { subscribe(params, answer); });
    mDispatcher.addSlow("waitFor", [this](RpcParams& params, const RpcAnswer& answer) { waitFor(params, answer); });
}

RpcMethods::~RpcMethods()
{
    mWatch.leave(this);
    mPhone.leave(this);
}

void RpcMethods::add(const std::string& name, Call call)
{
    mDispatcher.add(name, [this, call](RpcParams& params) { return (this->*call)(params); });
}

void RpcMethods::addChanging(const std::string& name, Call call)
{
    if (!mAbout.isReadOnly)
        return add(name, call);
    mDispatcher.add(name, [](RpcParams&) -> Json {
        throw RpcError(RpcError::READ_ONLY, "this telephone is only to be looked at");
    });
}

Json RpcMethods::hello(RpcParams& params)
{
    params.end();
    const ScreenPtr screen = mPhone.screen();
    return {{"version", VERSION},
            {"program", mAbout.program},
            {"panel", panelJson(screen->picture, nameOf(host::variant()))},
            {"language", screen->words.language},
            {"languages", offersJson(LANGUAGE)},
            {"actions", host::Wire::names()},
            {"virtualClock", host::Clock::instance().isVirtual()},
            {"readOnly", mAbout.isReadOnly},
            {"page", page()},
            {"methods", mDispatcher.names()}};
}

/// Who has the page's token presses keys there: that is nothing for who may only look.
Json RpcMethods::page() const
{
    return mAbout.isReadOnly && mAbout.page != "/" ? Json() : Json(mAbout.page);
}

Json RpcMethods::screen(RpcParams& params)
{
    params.end();
    return screenAnswer(*mPhone.screen());
}

Json RpcMethods::now(RpcParams& params)
{
    params.end();
    return {{"now", clockNow()}, {"virtualClock", host::Clock::instance().isVirtual()}};
}

Json RpcMethods::advance(RpcParams& params)
{
    const std::int64_t milliseconds = params.number("milliseconds", 0, 366 * DAY);
    params.end();
    std::int64_t left = milliseconds;
    do {
        endWhereNobodyIsThere();
        mPhone.advance(std::min(left, HOUR));
        left -= HOUR;
    } while (left > 0);
    return {{"number", mPhone.screen()->number}, {"now", clockNow()}};
}

Json RpcMethods::screenshot(RpcParams& params)
{
    const auto scale = static_cast<int>(params.number("scale", 1, 1, 8));
    params.end();
    const ScreenPtr screen = mPhone.photograph();
    return {{"number", screen->number}, {"png", toBase64(host::pngOf(screen->picture, scale))}};
}

Json RpcMethods::setLanguage(RpcParams& params)
{
    const std::string language = params.text("language");
    params.end();
    return say(LANGUAGE, language);
}

Json RpcMethods::exchange(RpcParams& params)
{
    const std::string line = params.text("line");
    params.end();
    return say("exchange", line);
}

Json RpcMethods::act(RpcParams& params)
{
    const std::string action = params.text("action");
    const std::string line = params.has("line") ? params.text("line") : std::string();
    params.end();
    return say(action, line);
}

Json RpcMethods::say(const std::string& wire, const std::string& line)
{
    mPhone.say(wire, line);
    return numberOf(mPhone.screen());
}

/// The GUI thread has no part in it: it may stand still.
Json RpcMethods::trace(RpcParams& params)
{
    host::RequestTrace& trace = host::RequestTrace::instance();
    const bool enable = params.flag("enable", trace.isEnabled());
    params.end();
    trace.enable(enable);
    return traceJson(enable, trace.take());
}

/// What the GUI thread has no part in is looked at first: it is as it is when somebody asks, not when that has waited.
Json RpcMethods::inspect(RpcParams& params)
{
    params.end();
    Json result = statusJson();
    addWidgets(result, mPhone.widgets());
    return result;
}

void RpcMethods::waitFor(RpcParams& params, const RpcAnswer& answer)
{
    ScreenCondition condition = conditionIn(params);
    const auto since = static_cast<std::uint64_t>(params.number("since", 0, 0, LAST_NUMBER));
    const std::chrono::milliseconds limit(params.number("timeout", USUAL_WAIT, 0, LONGEST_WAIT));
    params.end();
    const auto then = [answer](const ScreenWatch::Verdict& verdict) { tellVerdict(answer, verdict); };
    if (!mWatch.waitFor(this, std::move(condition), since, limit, then))
        throw RpcError(RpcError::TOO_MANY,
                       "you wait for " + std::to_string(ScreenWatch::MOST_WAITS) + " things already");
}

/// The answer goes out before the first change does.
void RpcMethods::subscribe(RpcParams& params, const RpcAnswer& answer)
{
    params.end();
    mWatch.unsubscribe(this);
    const ScreenPtr screen = mPhone.screen();
    answer.result(screenAnswer(*screen));
    const auto told = std::make_shared<std::uint64_t>(screen->number);
    mWatch.subscribe(this, *told, [this, told](const ScreenPtr& other) { mChanged(other, told); });
}

Json RpcMethods::unsubscribe(RpcParams& params)
{
    params.end();
    mWatch.unsubscribe(this);
    return Json::object();
}

Json RpcMethods::press(RpcParams& params)
{
    const PegKey key = keyIn(params);
    const std::int64_t times = params.number("times", 1, 1, MOST_PRESSES);
    const std::int64_t interval = params.number("interval", 0, 0, DAY);
    params.end();
    return pressAll(std::vector<PegKey>(static_cast<std::size_t>(times), key), interval);
}

Json RpcMethods::type(RpcParams& params)
{
    const std::vector<PegKey> keys = keysOf(params.text("text"));
    const std::int64_t interval = params.number("interval", 0, 0, DAY);
    params.end();
    return pressAll(keys, interval);
}

/// One after the other has been handled, so that the telephone takes each of them.
Json RpcMethods::pressAll(const std::vector<PegKey>& keys, std::int64_t interval)
{
    refuseLongRest(interval * static_cast<std::int64_t>(keys.size() - 1));
    ScreenPtr screen;
    for (const PegKey key : keys) {
        endWhereNobodyIsThere();
        if (screen != nullptr && interval > 0)
            mPhone.pass(interval);
        mPhone.press(this, key);
        screen = mPhone.screen();
    }
    return numberOf(screen);
}

/// There is nobody who hears that error.
void RpcMethods::endWhereNobodyIsThere() const
{
    if (mHasGone())
        throw RpcError(RpcError::INTERNAL, "the client has gone");
}

Json RpcMethods::hold(RpcParams& params)
{
    const PegKey key = keyIn(params);
    const bool isForGood = !params.has("duration");
    const std::int64_t duration = params.number("duration", 0, 0, DAY);
    params.end();
    refuseLongRest(duration);
    if (isForGood)
        mPhone.down(this, key);
    else
        mPhone.hold(this, key, duration, [this] { endWhereNobodyIsThere(); });
    return numberOf(mPhone.screen());
}

Json RpcMethods::release(RpcParams& params)
{
    const PegKey key = keyIn(params);
    params.end();
    mPhone.up(this, key);
    return numberOf(mPhone.screen());
}

} // namespace simulator
