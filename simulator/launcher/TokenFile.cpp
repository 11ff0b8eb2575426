#include "simulator/launcher/TokenFile.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

namespace simulator {

namespace {

constexpr mode_t FOR_THE_OWNER = 0600;

std::string randomToken()
{
    constexpr char DIGITS[] = "0123456789abcdef";
    std::array<unsigned char, 24> bytes{};
    if (getrandom(bytes.data(), bytes.size(), 0) != static_cast<ssize_t>(bytes.size()))
        return {};
    std::string token;
    for (const unsigned char byte : bytes)
        token.append({DIGITS[byte >> 4U], DIGITS[byte & 0xFU]});
    return token;
}

std::string temporaryName()
{
    for (const char* variable : {"XDG_RUNTIME_DIR", "TMPDIR"})
        if (const char* folder = std::getenv(variable); folder != nullptr && access(folder, W_OK) == 0)
            return std::string(folder) + "/phone-rpc-XXXXXX";
    return "/tmp/phone-rpc-XXXXXX";
}

/// A new file in the place of one that is there: whoever had that open reads nothing.
int createAnew(const std::string& path)
{
    struct stat former {};
    if (lstat(path.c_str(), &former) == 0 && S_ISREG(former.st_mode))
        unlink(path.c_str());
    return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, FOR_THE_OWNER);
}

} // namespace

TokenFile::TokenFile(const std::optional<std::string>& path) : mPath(path.value_or(temporaryName()))
{
    const int descriptor = path ? createAnew(mPath) : mkostemp(mPath.data(), O_CLOEXEC);
    if (descriptor >= 0 && write(descriptor))
        return;
    mError = "Cannot write the token to " + mPath + ": " + std::strerror(errno) + ".";
    if (descriptor < 0)
        mPath.clear();
}

TokenFile::~TokenFile()
{
    if (!mPath.empty())
        unlink(mPath.c_str());
}

bool TokenFile::write(int descriptor)
{
    mToken = randomToken();
    const std::string line = mToken + '\n';
    const bool isWritten = !mToken.empty() && fchmod(descriptor, FOR_THE_OWNER) == 0 &&
                           ::write(descriptor, line.data(), line.size()) == static_cast<ssize_t>(line.size());
    close(descriptor);
    return isWritten;
}

} // namespace simulator
