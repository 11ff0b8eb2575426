#include "simulator/launcher/ScriptSession.h"

#include "simulator/launcher/ApplicationRun.h"
#include "simulator/launcher/DisplayReminder.h"
#include "simulator/launcher/ReportPipe.h"
#include "simulator/launcher/ScriptVerdict.h"
#include "simulator/script/ScriptParser.h"
#include "simulator/script/ScriptReport.h"

#include <filesystem>
#include <iostream>

namespace simulator {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

constexpr int FAILED = 1;

/// Longer than any step may take.
constexpr seconds LONGEST_SILENCE(60);

Child::Environment environmentFor(const Options& options, int reportDescriptor)
{
    return {{"DISPLAYAPI_HOST", "script:" + *options.script},
            {"DISPLAYAPI_VARIANT", options.variant},
            {"DISPLAYAPI_CLOCK", "virtual"},
            {SCRIPT_OUT_VARIABLE, options.out},
            {SCRIPT_REPORT_VARIABLE, std::to_string(reportDescriptor)}};
}

/// Errors that can be told before the application starts.
std::string preparationError(const Options& options)
{
    std::string text;
    for (const std::string& error : readScript(*options.script, options.variant).errors)
        text += error + '\n';
    std::error_code error;
    std::filesystem::create_directories(options.out, error);
    if (error)
        text += "phone: Cannot make the folder " + options.out + ": " + error.message() + ".\n";
    return text;
}

/// Tells what there is to tell beyond the first `told` notes. Returns how many there are.
std::size_t tellNotes(const std::string& fileName, const ScriptOutcome& outcome, std::size_t told)
{
    for (; told < outcome.notes.size(); ++told)
        std::cerr << fileName << ':' << outcome.notes[told].line << ": " << outcome.notes[told].text << std::endl;
    return told;
}

/// Follows the report until the application has ended.
Ending follow(ApplicationRun& run, ReportPipe& pipe, const std::string& fileName)
{
    auto lastNews = steady_clock::now();
    DisplayReminder reminder;
    std::size_t told = 0;
    for (;;) {
        const auto ending = run.wait(seconds(1), pipe.descriptor());
        if (pipe.readAvailable())
            lastNews = steady_clock::now();
        const ScriptOutcome outcome = readOutcome(pipe.text());
        told = tellNotes(fileName, outcome, told);
        if (ending)
            return *ending;
        if (outcome.lastLine == 0)
            reminder.stillWaiting();
        if (outcome.isDecided())
            run.limitTo(TIME_TO_END);
        if (steady_clock::now() - lastNews > LONGEST_SILENCE)
            run.limitTo(milliseconds(0));
    }
}

} // namespace

int runScript(const Options& options)
{
    if (const std::string error = preparationError(options); !error.empty()) {
        std::cerr << error;
        return CANNOT_START;
    }
    ReportPipe pipe;
    ApplicationRun run(options.application, environmentFor(options, pipe.writeEnd()), pipe.writeEnd());
    if (!run.error().empty()) {
        std::cerr << "phone: " << run.error() << '\n';
        return CANNOT_START;
    }
    pipe.closeWriteEnd();
    const Ending ending = follow(run, pipe, *options.script);
    const ScriptVerdict verdict = judge(*options.script, readOutcome(pipe.text()), ending, run.wasKilled());
    (verdict.passed ? std::cout : std::cerr) << verdict.text << std::endl;
    return verdict.passed ? 0 : FAILED;
}

} // namespace simulator
