#include "simulator/launcher/Child.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace simulator {

namespace {

/// In the new process: becomes the application, or tells through the pipe why not.
[[noreturn]] void become(const std::vector<std::string>& command, const Child::Environment& added, int kept,
                         int errorPipe, pid_t launcher)
{
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != launcher)
        _exit(1);
    for (const auto& [name, value] : added)
        setenv(name.c_str(), value.c_str(), 1);
    if (kept >= 0)
        fcntl(kept, F_SETFD, 0);
    std::vector<char*> arguments;
    for (const std::string& word : command)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    const int reason = errno;
    _exit(write(errorPipe, &reason, sizeof reason) == sizeof reason ? 127 : 126);
}

std::string startError(const std::string& application, int reason)
{
    if (reason == ENOENT)
        return "There is no application '" + application + "'.";
    return "The application '" + application + "' cannot be started: " + std::strerror(reason) + ".";
}

} // namespace

std::string Ending::description() const
{
    if (signal != 0) {
        const char* name = sigabbrev_np(signal);
        return "was stopped by SIG" + std::string(name != nullptr ? name : std::to_string(signal)) + " (" +
               strsignal(signal) + ")";
    }
    return exitCode == 0 ? "has ended" : "has ended with exit code " + std::to_string(exitCode);
}

Child::Child(const std::vector<std::string>& command, const Environment& added, int kept)
{
    int errorPipe[2];
    if (pipe2(errorPipe, O_CLOEXEC) != 0) {
        mError = startError(command.front(), errno);
        return;
    }
    const pid_t launcher = getpid();
    prctl(PR_SET_CHILD_SUBREAPER, 1); // what the application leaves behind is the launcher's to wait for
    mPid = fork();
    if (mPid == 0)
        become(command, added, kept, errorPipe[1], launcher);
    int reason = mPid < 0 ? errno : 0;
    close(errorPipe[1]);
    if (mPid > 0 && read(errorPipe[0], &reason, sizeof reason) != sizeof reason)
        reason = 0;
    close(errorPipe[0]);
    if (reason != 0)
        mError = startError(command.front(), reason);
}

Child::~Child()
{
    send(SIGKILL);
    if (mPid > 0 && !mEnding)
        waitpid(mPid, nullptr, 0);
}

std::optional<Ending> Child::ending()
{
    int status = 0;
    if (mPid <= 0 || mEnding || waitpid(mPid, &status, WNOHANG | WUNTRACED) != mPid)
        return mEnding;
    const bool wantsTerminal = WIFSTOPPED(status) && (WSTOPSIG(status) == SIGTTIN || WSTOPSIG(status) == SIGTTOU);
    if (wantsTerminal)
        lendTerminal();
    else if (!WIFSTOPPED(status))
        mEnding = WIFSIGNALED(status) ? Ending{0, WTERMSIG(status)} : Ending{WEXITSTATUS(status), 0};
    return mEnding;
}

/// The launcher is in the terminal's foreground, its application is not. A debugger wants to be.
void Child::lendTerminal()
{
    if (tcsetpgrp(STDIN_FILENO, mPid) == 0)
        send(SIGCONT);
}

/// The number of a group that is gone may become another one's: it is not looked for again.
bool Child::groupIsGone()
{
    if (mPid <= 0 || mGroupIsGone)
        return true;
    if (!ending())
        return false;
    while (waitpid(-mPid, nullptr, WNOHANG) > 0)
        ;
    mGroupIsGone = kill(-mPid, 0) != 0;
    return mGroupIsGone;
}

void Child::send(int signal)
{
    if (!groupIsGone())
        kill(-mPid, signal);
}

} // namespace simulator
