#pragma once

#include "host/input/Keyboard.h"
#include "simulator/core/ScreenReader.h"
#include "simulator/record/Recording.h"
#include "simulator/record/RecordingFile.h"

#include <string>

namespace simulator {

/// Writes down what is done on this telephone, by whomever, as a script. Made and left on the GUI thread, which does
/// the writing: a line is in the file before the program has done what it says. What is said to the program comes from
/// any thread, and goes to the GUI thread as a message.
class Recorder final : private host::Keyboard::Witness {
public:
    Recorder(host::Lcd& lcd, const std::string& file, std::string program);
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;
    ~Recorder();

    /// A sentence for the user where the file cannot be written; empty otherwise.
    const std::string& error() const { return mFile.error(); }

    /// There is a frame. GUI thread.
    void frameReady() { mReader.frameReady(); }

private:
    void keyComes(const PegMessage& message) override;
    void keyIsHandled(const PegMessage& message) override;
    void said(std::string_view wire, std::string_view line, const std::string* refusal);
    void missed(const std::string& wire, const std::string& line);
    void shown(const ScreenPtr& screen);
    void write(const std::string& line);
    void begin();

    RecordingFile mFile;
    const std::string mProgram;
    bool mHasBegun = false;
    bool mIsBroken = false;  ///< and that has been told
    host::Workplace mBefore; ///< where the key that goes down now has found the user
    Recording mRecording;
    ScreenReader mReader;
};

} // namespace simulator
