#include "simulator/script/Threads.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace simulator {

namespace {

constexpr const char* TASKS = "/proc/self/task";

std::string_view valueOf(std::string_view name, std::string_view status)
{
    const std::size_t at = status.find(name);
    if (at == std::string_view::npos)
        return {};
    const std::string_view rest = status.substr(at + name.size());
    return rest.substr(0, rest.find('\n'));
}

/// Empty when the thread has ended.
std::string_view read(int file, std::array<char, 4096>& text)
{
    const ssize_t length = pread(file, text.data(), text.size(), 0);
    return {text.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

/// It has something to do, or a disk has it for it.
bool isAwake(std::string_view state)
{
    return state.starts_with('R') || state.starts_with('D');
}

/// How often a thread has gone to sleep; nothing when it is awake.
std::optional<std::uint64_t> napsIn(std::string_view status)
{
    if (isAwake(valueOf("\nState:\t", status)))
        return {};
    const std::string_view naps = valueOf("\nvoluntary_ctxt_switches:\t", status);
    std::uint64_t count = 0;
    std::from_chars(naps.data(), naps.data() + naps.size(), count);
    return count;
}

} // namespace

OtherThreads::~OtherThreads()
{
    forget();
}

bool OtherThreads::areAtRest()
{
    if (!areKnown())
        getToKnow();
    const std::optional<Naps> first = naps();
    return first && areKnown() && first == naps();
}

/// None where one is awake or has ended.
std::optional<OtherThreads::Naps> OtherThreads::naps()
{
    std::array<char, 4096> text;
    Naps all;
    for (const auto& [thread, file] : mStatus) {
        if (thread == gettid())
            continue;
        const std::string_view status = read(file, text);
        if (status.empty()) {
            forget();
            return {};
        }
        const std::optional<std::uint64_t> its = napsIn(status);
        if (!its)
            return {};
        all.push_back(*its);
    }
    return all;
}

/// The folder has a link for each thread, and two of its own.
bool OtherThreads::areKnown() const
{
    struct stat folder = {};
    return stat(TASKS, &folder) == 0 && folder.st_nlink == mStatus.size() + 2;
}

void OtherThreads::getToKnow()
{
    forget();
    for (const auto& thread : std::filesystem::directory_iterator(TASKS)) {
        const int file = open((thread.path() / "status").c_str(), O_RDONLY | O_CLOEXEC);
        if (file >= 0)
            mStatus.emplace(std::stoi(thread.path().filename()), file);
    }
}

void OtherThreads::forget()
{
    for (const auto& [thread, file] : mStatus)
        close(file);
    mStatus.clear();
}

} // namespace simulator
