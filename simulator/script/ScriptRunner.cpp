#include "simulator/script/ScriptRunner.h"

#include "host/Phone.h"
#include "host/lcd/Png.h"
#include "host/toolkit/Loop.h"
#include "simulator/core/HeldKey.h"
#include "simulator/core/TextDifference.h"
#include "simulator/screen/ScreenJson.h"
#include "simulator/screen/ScreenRows.h"
#include "simulator/screen/ScreenText.h"
#include "simulator/script/ExpectedScreen.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace simulator {

namespace {

using std::chrono::milliseconds;

constexpr char STANDSTILL_NOTE[] = "the GUI thread stands still: for 2 seconds it has been at one thing";
static_assert(host::Loop::STANDSTILL == std::chrono::seconds(2));

constexpr std::int64_t LONGEST_AWAITED = 60'000;
constexpr std::int64_t AWAITED_CLOSELY = 5'000;
constexpr std::int64_t CLOSE_LOOK = 50;
constexpr std::int64_t DISTANT_LOOK = 500;

/// In characters.
constexpr std::ptrdiff_t SHORT = 3;

bool isShort(const std::string& text)
{
    const auto begins = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80; };
    return std::ranges::count_if(text, begins) <= SHORT;
}

Hand::Match matchOf(const Step& step)
{
    return step.isLoose ? Hand::Match::PART : Hand::Match::WHOLE;
}

struct StepFailed : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace

ScriptRunner::ScriptRunner(ScriptedPhone& phone, ScriptReport& report, std::filesystem::path folder,
                           milliseconds patience)
    : mPhone(phone), mHand(phone,
                           {[this](PegKey key, int times) { press(key, times); }, [this](PegKey key) { finish(key); },
                            [this] { settle(); }},
                           patience),
      mReport(report), mFolder(std::move(folder)), mPatience(patience)
{
}

void ScriptRunner::run(const Script& script)
{
    try {
        for (const Step& step : script.steps)
            runStep(step);
    } catch (const StepFailed& failure) {
        if (!hasEndedProgram(script))
            return mReport.failed(mLine, failure.what() + keepScreen(script.name));
    }
    mReport.passed();
}

void ScriptRunner::runStep(const Step& step)
{
    mLine = step.line;
    mKeysAreThrough = false;
    mReport.at(mLine);
    settle();
    perform(step);
}

bool ScriptRunner::hasEndedProgram(const Script& script) const
{
    return mKeysAreThrough && mLine == script.steps.back().line && !mPhone.isThere();
}

/// Returns the sentence that says where it is.
std::string ScriptRunner::keepScreen(const std::string& name)
{
    const std::filesystem::path picture = mFolder / (name + "-failed.png");
    const std::filesystem::path text = mFolder / (name + "-failed.txt");
    try {
        writePicture(picture);
        write(text, mStandsStill ? screenText({}, mPhone.picture().texts) : screen());
    } catch (const StepFailed&) {
        return "the screen cannot be kept in " + mFolder.string();
    }
    return "the screen is kept as " + picture.string() + " and " + text.string();
}

void ScriptRunner::perform(const Step& step)
{
    using enum Step::Action;
    switch (step.action) {
    case PRESS: return pressAll(step);
    case HOLD: return hold(step);
    case WAIT: return mPhone.pass(step.milliseconds);
    case ADVANCE: return advance(step);
    case EXPECT: return expect(step, true);
    case EXPECT_NOT: return expect(step, false);
    case SCREENSHOT: return writePicture(mFolder / step.text);
    case DUMP: return write(mFolder / step.text, screen());
    case DUMP_JSON: return write(mFolder / step.text, screenJson(mPhone.picture(), nameOf(host::variant())));
    case COMPARE: return compare(step);
    case SAY: return say(step);
    case CHOOSE: return insist(mHand.choose(shown(step.target), step.nth, matchOf(step)));
    case SELECT: return insist(mHand.select(shown(step.target), step.nth, matchOf(step)));
    case TYPE: return insist(mHand.type(shown(step.target).front()));
    case SET: return insist(mHand.set(shown(step.target)));
    case COMMAND: return insist(mHand.command(shown(step.target), step.nth, matchOf(step)));
    case BACK: return insist(mHand.back());
    case DIAL: return insist(mHand.dial(shown(step.target).front()));
    case AWAIT: return await(step, true);
    case AWAIT_NOT: return await(step, false);
    }
}

void ScriptRunner::press(PegKey key, int times)
{
    for (int i = 0; i < times; ++i) {
        down(key);
        up(key);
    }
    settle();
}

void ScriptRunner::finish(PegKey key)
{
    down(key);
    mKeysAreThrough = true;
    up(key);
    settle();
}

void ScriptRunner::pressAll(const Step& step)
{
    for (const PegKey& key : step.keys) {
        down(key);
        mKeysAreThrough = &key == &step.keys.back();
        up(key);
        settle();
    }
}

void ScriptRunner::hold(const Step& step)
{
    const PegKey key = step.keys.front();
    for (const std::int64_t pause : pausesOfHeld(key, step.milliseconds)) {
        down(key);
        mPhone.pass(pause);
    }
    mKeysAreThrough = true;
    up(key);
    settle();
}

void ScriptRunner::insist(const std::string& complaint)
{
    if (!complaint.empty())
        fail(complaint);
}

/// What the text may be on the screen, in the language of the moment.
std::vector<std::string> ScriptRunner::shown(const ScriptText& text)
{
    return text.shown([this](const std::string& key) { return mPhone.translate(key); });
}

/// Any of the texts; or none of them. A short one that is exactly meant is a whole text that stands there for a while:
/// part of something, of a clock at least, it is too easily.
ScreenCondition ScriptRunner::conditionFor(const Step& step, const std::vector<std::string>& texts, bool wanted)
{
    using enum ScreenCondition::What;
    using enum ScreenCondition::Match;
    const bool isWhole = !step.isLoose && std::ranges::any_of(texts, isShort);
    ScreenCondition condition(wanted ? TEXT : NO_TEXT, isWhole ? EQUAL : CONTAINS, texts.front(), {}, !isWhole);
    std::for_each(texts.begin() + 1, texts.end(), [&](const std::string& text) { condition.addText(text); });
    return condition;
}

void ScriptRunner::expect(const Step& step, bool wanted)
{
    const std::vector<std::string> texts = shown(step.target);
    if (mPhone.waitFor(conditionFor(step, texts, wanted), mPatience))
        fail((wanted ? "expected " : "expected no ") + anyOf(texts));
}

/// First in small steps, so that nothing is missed that stays for a moment.
void ScriptRunner::await(const Step& step, bool wanted)
{
    const std::vector<std::string> texts = shown(step.target);
    const ScreenCondition condition = conditionFor(step, texts, wanted);
    for (std::int64_t passed = 0; mPhone.waitFor(condition, milliseconds(0));) {
        if (passed >= LONGEST_AWAITED)
            fail(anyOf(texts) + " has not " + (wanted ? "come" : "gone") + " within " +
                 std::to_string(LONGEST_AWAITED / 1000) + " seconds on the telephone's clock");
        const std::int64_t time = passed < AWAITED_CLOSELY ? CLOSE_LOOK : DISTANT_LOOK;
        mPhone.pass(time);
        passed += time;
        settle();
    }
}

void ScriptRunner::advance(const Step& step)
{
    if (!mPhone.advance(step.milliseconds))
        fail("the telephone's clock is not a virtual one");
}

void ScriptRunner::compare(const Step& step)
{
    if (updatesScreens())
        return update(step);
    using enum ScreenCondition::What;
    if (const auto difference = mPhone.waitFor({SCREEN, ScreenCondition::Match::EQUAL, read(step.text)}, mPatience))
        fail("the screen is not that of " + step.text + " (-), but another (+):\n" + *difference);
}

void ScriptRunner::update(const Step& step)
{
    const std::string shown = screen();
    const bool isOther = exists(std::filesystem::path(step.text)) && !textDifference(read(step.text), shown).empty();
    write(isOther ? ownScreen(step.text, nameOf(host::variant())) : std::filesystem::path(step.text), shown);
}

void ScriptRunner::say(const Step& step)
{
    insist(mPhone.say(step.wire, step.text));
}

void ScriptRunner::writePicture(const std::filesystem::path& path)
{
    const std::string error = host::writePng(mPhone.picture(), path);
    if (!error.empty())
        fail(error);
}

std::string ScriptRunner::screen()
{
    const ScreenPtr screen = mPhone.screen();
    return screen != nullptr ? textOf(*screen) : std::string();
}

std::string ScriptRunner::read(const std::filesystem::path& path)
{
    std::ifstream file(path);
    if (!file)
        fail("cannot read " + path.string());
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

void ScriptRunner::write(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream file(path);
    file << text << std::flush;
    if (!file)
        fail("cannot write " + path.string());
}

void ScriptRunner::down(PegKey key)
{
    if (!mPhone.press(key))
        fail("the telephone does not take the key");
}

void ScriptRunner::up(PegKey key)
{
    if (!mPhone.release(key))
        fail("the telephone does not take the key");
}

void ScriptRunner::settle()
{
    const auto standsStill = [this] {
        mStandsStill = true;
        mReport.note(mLine, STANDSTILL_NOTE);
    };
    mStandsStill = false;
    if (mPhone.settle(standsStill)) {
        mStandsStill = false;
        return;
    }
    if (!mPhone.isThere())
        fail("the application has ended");
    fail(std::string("the application does not come to rest") + (mStandsStill ? ": its GUI thread stands still" : ""));
}

void ScriptRunner::fail(const std::string& reason)
{
    const std::string rows = describe(rowsOf(mPhone.picture().texts));
    throw StepFailed(reason + (rows.empty() ? "\nthe screen shows no text\n" : "\nthe screen shows:\n" + rows));
}

} // namespace simulator
