#include "simulator/record/RecordingFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace simulator {

namespace {

constexpr mode_t FOR_ITS_OWNER = 0600;

bool hasSomethingInIt(int descriptor)
{
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

} // namespace

/// Opening a pipe does not wait for somebody at its other end.
RecordingFile::RecordingFile(std::string path)
    : mPath(std::move(path)),
      mDescriptor(open(mPath.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK | O_CLOEXEC, FOR_ITS_OWNER))
{
    if (mDescriptor < 0)
        mError = "The recording cannot be written to " + mPath + ": " + std::strerror(errno) + ".";
    else if (hasSomethingInIt(mDescriptor))
        mError = "There is a file " + mPath + " already; a recording does not overwrite it.";
}

RecordingFile::~RecordingFile()
{
    if (mDescriptor >= 0)
        close(mDescriptor);
}

void RecordingFile::write(const std::string& line)
{
    const std::string text = line + '\n';
    for (std::size_t done = 0; mError.empty() && done < text.size();) {
        const ssize_t count = ::write(mDescriptor, text.data() + done, text.size() - done);
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            mError = "The recording cannot be written to " + mPath + ": " + std::strerror(errno) + ".";
    }
}

} // namespace simulator
