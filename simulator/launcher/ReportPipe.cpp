#include "simulator/launcher/ReportPipe.h"

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace simulator {

namespace {

void closeOnce(int& descriptor)
{
    if (descriptor >= 0)
        close(std::exchange(descriptor, -1));
}

} // namespace

ReportPipe::ReportPipe()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return;
    mReadEnd = ends[0];
    mWriteEnd = ends[1];
    fcntl(mReadEnd, F_SETFL, O_NONBLOCK);
}

ReportPipe::~ReportPipe()
{
    closeWriteEnd();
    closeOnce(mReadEnd);
}

void ReportPipe::closeWriteEnd()
{
    closeOnce(mWriteEnd);
}

bool ReportPipe::readAvailable()
{
    char buffer[4096];
    const std::size_t before = mText.size();
    ssize_t count = -1;
    while (mReadEnd >= 0 && (count = read(mReadEnd, buffer, sizeof buffer)) > 0)
        mText.append(buffer, static_cast<std::size_t>(count));
    if (count == 0)
        closeOnce(mReadEnd);
    return mText.size() > before;
}

} // namespace simulator
