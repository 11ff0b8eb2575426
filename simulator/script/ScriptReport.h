#pragma once

#include <string>

namespace simulator {

/// Where the result of a script goes.
class ScriptReport {
public:
    virtual ~ScriptReport() = default;

    /// The step of this line is about to run.
    virtual void at(int line) = 0;

    /// Something that the user wants to know while the script goes on.
    virtual void note(int line, const std::string& text) = 0;

    virtual void passed() = 0;
    virtual void failed(int line, const std::string& reason) = 0;
};

/// The environment variable that names the report's pipe.
inline constexpr char SCRIPT_REPORT_VARIABLE[] = "DISPLAYAPI_SCRIPT_FD";

/// Where screenshots and dumps go.
inline constexpr char SCRIPT_OUT_VARIABLE[] = "DISPLAYAPI_SCRIPT_OUT";

/// Writes the report down a pipe, for ScriptOutcome at its other end: a line `at N` before each step, `note N` and a
/// text in one line on the way, then `passed`, or `failed N` and the reason.
class PipeReport final : public ScriptReport {
public:
    explicit PipeReport(int descriptor) : mDescriptor(descriptor) {}
    PipeReport(const PipeReport&) = delete;
    PipeReport& operator=(const PipeReport&) = delete;
    ~PipeReport() override;

    void at(int line) override;
    void note(int line, const std::string& text) override;
    void passed() override;
    void failed(int line, const std::string& reason) override;

private:
    void write(const std::string& text) const;

    int mDescriptor;
};

/// For a person at the terminal, where there is no launcher: only what goes wrong is worth a word.
class TerminalReport final : public ScriptReport {
public:
    explicit TerminalReport(std::string fileName) : mFileName(std::move(fileName)) {}

    void at(int) override {}
    void note(int line, const std::string& text) override;
    void passed() override {}
    void failed(int line, const std::string& reason) override;

private:
    std::string mFileName;
};

} // namespace simulator
