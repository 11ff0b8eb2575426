#include "simulator/record/Recorder.h"

#include "host/Phone.h"
#include "host/clock/Clock.h"
#include "host/frontend/Wire.h"
#include "host/utilities/TranslationMemory.h"
#include "simulator/core/DisplayedWords.h"
#include "simulator/record/TextOrigin.h"

#include <iostream>

namespace simulator {

namespace {

/// A program's own threads need a moment; its timers take longer.
constexpr std::int64_t AT_ONCE = 100;

ScriptText originOf(const std::string& text)
{
    return TextOrigin([](const std::string& shown) { return host::TranslationMemory::instance().originsOf(shown); })
        .of(text);
}

} // namespace

Recorder::Recorder(host::Lcd& lcd, const std::string& file, std::string program)
    : mFile(file), mProgram(std::move(program)),
      mRecording({host::Workplace::read, originOf, [] { return host::Clock::instance().now(); },
                  host::Clock::instance().isVirtual() ? 0 : AT_ONCE, [this](const std::string& line) { write(line); }}),
      mReader(lcd, displayedWords)
{
    host::TranslationMemory::instance().switchOn();
    host::Keyboard::instance().setWitness(this);
    host::Wire::setWitness([this](std::string_view wire, std::string_view line, const std::string* refusal) {
        said(wire, line, refusal);
    });
    mReader.setListener([this](const ScreenPtr& screen) { shown(screen); });
}

Recorder::~Recorder()
{
    host::Wire::setWitness({});
    host::Keyboard::instance().setWitness(nullptr);
    mReader.setListener({});
    mReader.leave();
    mRecording.end();
    host::TranslationMemory::instance().switchOff();
}

void Recorder::keyComes(const PegMessage& message)
{
    const auto key = static_cast<PegKey>(message.iData);
    mBefore = host::Workplace::read();
    if (message.wType == PM_KEY)
        mRecording.comes(key, mBefore);
    else
        mRecording.released(key, mBefore);
}

void Recorder::keyIsHandled(const PegMessage& message)
{
    if (message.wType == PM_KEY)
        mRecording.done(static_cast<PegKey>(message.iData), mBefore, host::Workplace::read());
}

/// Before the program does anything about it the message stands in the queue.
void Recorder::said(std::string_view wire, std::string_view line, const std::string* refusal)
{
    const bool isOver = refusal != nullptr;
    mReader.read([this, isOver, wire = std::string(wire), line = std::string(line),
                  reason = isOver ? *refusal : std::string()](const ScreenPtr& screen) {
        if (screen == nullptr)
            return isOver ? void() : missed(wire, line);
        if (isOver)
            mRecording.said(wire, line, reason);
        else
            mRecording.saying(wire, line);
    });
}

/// On the thread that says it: where the telephone is there, it takes no message at the moment.
void Recorder::missed(const std::string& wire, const std::string& line)
{
    if (mReader.isThere())
        std::cerr << "The recording lacks what was said to the program: " << onOneLine(wire + ' ' + line) << std::endl;
}

void Recorder::shown(const ScreenPtr& screen)
{
    if (screen == nullptr)
        return;
    begin();
    mRecording.shown(host::Workplace::read(), screen->picture.texts);
}

void Recorder::begin()
{
    if (mHasBegun)
        return;
    mHasBegun = true;
    const std::string panel(nameOf(host::variant()));
    mFile.write("# Recorded by phone --record on the panel " + panel + ", of " + onOneLine(mProgram) + '.');
    const std::string language = displayedLanguage();
    mFile.write("# It was in " +
                (language.empty() ? std::string("a language that it does not name") : onOneLine(language)) +
                "; what it says replays on every panel and in every language:");
    mFile.write("#     phone --script FILE " + onOneLine(mProgram));
    mFile.write("# It needs the program as it was at the beginning: its first screen, and what it had kept by then.");
    mFile.write("# What has been typed stands here in full, passwords too.");
}

/// The telephone goes on without it.
void Recorder::write(const std::string& line)
{
    begin();
    mFile.write(line);
    if (!mFile.error().empty() && !std::exchange(mIsBroken, true))
        std::cerr << mFile.error() << " The telephone goes on without it." << std::endl;
}

} // namespace simulator
