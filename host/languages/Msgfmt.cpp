#include "host/languages/Msgfmt.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <spawn.h>
#include <sstream>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace host {

namespace {

constexpr std::string_view INPUT_NAME = "<stdin>";

/// A file in memory for a child process to read or to write: a phone need not have a place for temporary ones.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view content = {}) : mDescriptor(memfd_create("catalogue", MFD_CLOEXEC))
    {
        while (!content.empty()) {
            const ssize_t written = write(mDescriptor, content.data(), content.size());
            if (written <= 0)
                return;
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        lseek(mDescriptor, 0, SEEK_SET);
    }
    ~MemoryFile() { close(mDescriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int descriptor() const { return mDescriptor; }

    std::string content() const
    {
        std::string all;
        std::array<char, 16384> part;
        for (ssize_t got; (got = pread(mDescriptor, part.data(), part.size(), static_cast<off_t>(all.size()))) > 0;)
            all.append(part.data(), static_cast<std::size_t>(got));
        return all;
    }

private:
    const int mDescriptor;
};

/// The header is looked at by those who read what has been compiled: they want more of it than --check-header does.
const char* const ARGUMENTS[] = {"msgfmt", "--check-format", "--check-domain", "--endianness=little", "-o", "-",
                                 "-",      nullptr};

/// Complaints are in English, whatever the user speaks.
const char* const ENVIRONMENT[] = {"LC_ALL=C", nullptr};

/// Returns an error number; 0 where the program has been started.
int start(const MemoryFile& input, const MemoryFile& output, const MemoryFile& complaints, pid_t& child)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.descriptor(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.descriptor(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, complaints.descriptor(), STDERR_FILENO);
    const int error = posix_spawnp(&child, ARGUMENTS[0], &actions, nullptr, const_cast<char**>(ARGUMENTS),
                                   const_cast<char**>(ENVIRONMENT));
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

/// Whether it has ended well, as far as can be known: where the application ignores SIGCHLD nobody learns how.
bool endsWell(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR)
        continue;
    return status == 0;
}

/// The first error behind the name of the file; warnings are none.
std::string firstOf(const std::string& complaints)
{
    std::istringstream lines(complaints);
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with(INPUT_NAME) && line.find(" warning: ") == std::string::npos)
            return line.substr(INPUT_NAME.size());
    return {};
}

std::string whyNotStarted(int error)
{
    if (error == ENOENT)
        return ": Reading it takes msgfmt, of the Debian package gettext; what msgfmt has compiled (.mo) takes "
               "nothing.";
    return std::string(": msgfmt cannot be run: ") + std::strerror(error) + ".";
}

} // namespace

std::string compileWithMsgfmt(std::string_view source, std::string& compiled)
{
    const MemoryFile input(source), output, complaints;
    pid_t child = 0;
    if (const int error = start(input, output, complaints, child); error != 0)
        return whyNotStarted(error);
    const bool isWell = endsWell(child);
    const std::string complaint = firstOf(complaints.content());
    if (complaint.empty() && !isWell)
        return ": msgfmt has failed.";
    compiled = output.content();
    return complaint;
}

} // namespace host
