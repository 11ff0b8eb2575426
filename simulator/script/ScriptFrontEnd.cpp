#include "simulator/script/ScriptFrontEnd.h"

#include "host/Phone.h"
#include "host/toolkit/Loop.h"
#include "simulator/script/ScriptParser.h"
#include "simulator/script/ScriptRunner.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>

namespace simulator {

namespace {

constexpr std::chrono::seconds PATIENCE(5);

std::string joined(const std::vector<std::string>& sentences)
{
    std::string text;
    for (const std::string& sentence : sentences)
        text += (text.empty() ? "" : "\n") + sentence;
    return text;
}

std::unique_ptr<ScriptReport> makeReport(const std::string& fileName)
{
    const char* text = std::getenv(SCRIPT_REPORT_VARIABLE);
    int descriptor = -1;
    if (text != nullptr)
        std::from_chars(text, text + std::strlen(text), descriptor);
    if (fcntl(descriptor, F_SETFD, FD_CLOEXEC) != 0)
        return std::make_unique<TerminalReport>(fileName);
    return std::make_unique<PipeReport>(descriptor);
}

std::filesystem::path outputFolder()
{
    const char* folder = std::getenv(SCRIPT_OUT_VARIABLE);
    return folder != nullptr ? folder : ".";
}

} // namespace

std::string ScriptFrontEnd::start(const std::string& fileName)
{
    mScript = readScript(fileName, nameOf(host::variant()));
    if (!mScript.errors.empty())
        return joined(mScript.errors);
    mReport = makeReport(fileName);
    mPhone.emplace(*host::Lcd::current());
    mThread = std::thread([this] { run(); });
    return {};
}

void ScriptFrontEnd::stop()
{
    if (!mThread.joinable())
        return;
    mPhone->leave();
    mThread.join();
    mPhone.reset();
    mReport.reset();
}

void ScriptFrontEnd::run()
{
    ScriptRunner(*mPhone, *mReport, outputFolder(), PATIENCE).run(mScript);
    host::Loop::quit();
}

} // namespace simulator

extern "C" __attribute__((visibility("default"))) host::FrontEnd* displayapiCreateFrontEnd()
{
    return new simulator::ScriptFrontEnd;
}
