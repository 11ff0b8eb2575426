#pragma once

#include "simulator/script/Hand.h"
#include "simulator/script/Script.h"
#include "simulator/script/ScriptReport.h"
#include "simulator/script/ScriptedPhone.h"

#include <chrono>
#include <filesystem>
#include <string>

namespace simulator {

/// Carries out a script step by step on a telephone, and reports how far it got.
class ScriptRunner {
public:
    /// Pictures and dumps go into `folder`. An expectation is given `patience` of real time to come true. Where screens
    /// are updated, comparisons write their files, but no panel overwrites what another one shows. A script that fails
    /// leaves the screen in `folder` as NAME-failed.png and NAME-failed.txt.
    ScriptRunner(ScriptedPhone& phone, ScriptReport& report, std::filesystem::path folder,
                 std::chrono::milliseconds patience);

    /// Stops at the first step that fails. The last step's keys may end the program.
    void run(const Script& script);

private:
    void runStep(const Step& step);
    bool hasEndedProgram(const Script& script) const;
    std::string keepScreen(const std::string& name);
    void perform(const Step& step);
    void pressAll(const Step& step);
    void hold(const Step& step);
    void expect(const Step& step, bool wanted);
    void advance(const Step& step);
    void compare(const Step& step);
    void await(const Step& step, bool wanted);
    void say(const Step& step);
    void insist(const std::string& complaint);
    std::vector<std::string> shown(const ScriptText& text);
    static ScreenCondition conditionFor(const Step& step, const std::vector<std::string>& texts, bool wanted);
    void press(PegKey key, int times);
    void finish(PegKey key);
    void update(const Step& step);
    void writePicture(const std::filesystem::path& path);
    std::string screen();
    std::string read(const std::filesystem::path& path);
    void write(const std::filesystem::path& path, const std::string& text);
    void down(PegKey key);
    void up(PegKey key);
    void settle();
    [[noreturn]] void fail(const std::string& reason);

    ScriptedPhone& mPhone;
    Hand mHand;
    ScriptReport& mReport;
    std::filesystem::path mFolder;
    std::chrono::milliseconds mPatience;
    int mLine = 0;
    bool mKeysAreThrough = false; ///< the last key of the present step has gone down
    bool mStandsStill = false;    ///< the GUI thread has not come back
};

} // namespace simulator
