#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <unistd.h>
#include <utility>

namespace test {

/// A folder for what a telephone keeps, which is not there at first, nor at the end.
class StateFolder {
public:
    StateFolder() { std::filesystem::remove_all(mPath); }
    StateFolder(const StateFolder&) = delete;
    StateFolder& operator=(const StateFolder&) = delete;
    ~StateFolder() { std::filesystem::remove_all(mPath); }

    const std::filesystem::path& path() const { return mPath; }

private:
    const std::filesystem::path mPath =
        std::filesystem::temp_directory_path() / ("displayapi-state-" + std::to_string(getpid()));
};

/// Nobody can write there as long as this lives, the super-user included: then somebody else looks.
class ReadOnly {
public:
    explicit ReadOnly(std::filesystem::path folder) : mFolder(std::move(folder))
    {
        std::filesystem::permissions(mFolder, std::filesystem::perms(0555));
        EXPECT_EQ(seteuid(geteuid() == 0 ? NOBODY : geteuid()), 0);
    }
    ReadOnly(const ReadOnly&) = delete;
    ReadOnly& operator=(const ReadOnly&) = delete;
    ~ReadOnly()
    {
        EXPECT_EQ(seteuid(getuid()), 0);
        std::filesystem::permissions(mFolder, std::filesystem::perms(0755));
    }

private:
    static constexpr uid_t NOBODY = 65534;

    std::filesystem::path mFolder;
};

} // namespace test
