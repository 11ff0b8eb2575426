#pragma once

#include <csignal>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace simulator {

/// How a process ended.
struct Ending {
    int exitCode = 0;
    int signal = 0; ///< 0 when it ended by itself

    bool isGood() const { return exitCode == 0 && signal == 0; }

    /// "has ended", "has ended with exit code 3", "was stopped by SIGSEGV (Segmentation fault)"
    std::string description() const;

    /// What the launcher ends with: the exit code, or 128 and the signal, as a shell does.
    int status() const { return signal == 0 ? exitCode : 128 + signal; }
};

/// The application's process, at the head of a process group of its own: what it starts belongs to it, and ends with
/// the launcher as it does.
class Child {
public:
    using Environment = std::map<std::string, std::string>;

    /// Starts `command` with variables added to the environment. The descriptor `kept` (-1 for none) stays open in it.
    Child(const std::vector<std::string>& command, const Environment& added, int kept = -1);
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// Kills what still runs of the group.
    ~Child();

    /// A sentence for the user when it could not be started; empty otherwise.
    const std::string& error() const { return mError; }

    /// How it ended; nothing while it runs. One that wants the launcher's terminal gets it.
    std::optional<Ending> ending();

    /// Whether nothing runs any more of what it has started.
    bool groupIsGone();

    /// To the whole group.
    void send(int signal);

private:
    void lendTerminal();

    pid_t mPid = -1;
    bool mGroupIsGone = false;
    std::optional<Ending> mEnding;
    std::string mError;
};

} // namespace simulator
