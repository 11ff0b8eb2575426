#include "simulator/record/RecordingFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace simulator {

namespace {

constexpr mode_t FOR_ITS_OWNER = 0600;

constexpr int AT_ITS_END = O_WRONLY | O_APPEND | O_NONBLOCK | O_CLOEXEC; // a pipe is not waited for

} // namespace

/// One that is there already and empty may have been made for everybody.
RecordingFile::RecordingFile(std::string path)
    : mPath(std::move(path)), mDescriptor(open(mPath.c_str(), AT_ITS_END | O_CREAT | O_EXCL, FOR_ITS_OWNER)),
      mIsNew(mDescriptor >= 0)
{
    if (!mIsNew && errno == EEXIST)
        mDescriptor = open(mPath.c_str(), AT_ITS_END);
    struct stat status {};
    const bool isFile = mDescriptor >= 0 && fstat(mDescriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (isFile && status.st_size > 0)
        mError = "There is a file " + mPath + " already; a recording does not overwrite it.";
    else if (mDescriptor < 0 || (isFile && fchmod(mDescriptor, FOR_ITS_OWNER) != 0))
        mError = "The recording cannot be written to " + mPath + ": " + std::strerror(errno) + ".";
}

/// Leaves no empty one behind that it has made.
RecordingFile::~RecordingFile()
{
    if (mDescriptor < 0)
        return;
    struct stat status {};
    if (mIsNew && fstat(mDescriptor, &status) == 0 && status.st_size == 0)
        unlink(mPath.c_str());
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
