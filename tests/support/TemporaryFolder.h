#pragma once

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace test {

/// A folder of this test's own, which goes with it: other tests run at the same time.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::string name = testing::TempDir() + "displayapi-test.XXXXXX";
        if (mkdtemp(name.data()) == nullptr)
            std::abort();
        mPath = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(mPath); }

    const std::filesystem::path& path() const { return mPath; }
    std::string operator/(const char* file) const { return mPath / file; }

private:
    std::filesystem::path mPath;
};

} // namespace test
