#include "simulator/launcher/TokenFile.h"

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

namespace {

using simulator::TokenFile;
using std::filesystem::perms;

std::string lineOf(const std::string& path)
{
    std::string line;
    std::getline(std::ifstream(path) >> std::ws, line);
    return line;
}

perms rightsOf(const std::string& path)
{
    return std::filesystem::status(path).permissions();
}

TEST(TokenFile, OnlyTheOwnerReadsIt)
{
    const TokenFile file({});
    EXPECT_EQ(file.error(), "");
    EXPECT_EQ(file.token().size(), 48u);
    EXPECT_EQ(lineOf(file.path()), file.token());
    EXPECT_EQ(rightsOf(file.path()), perms::owner_read | perms::owner_write);
}

TEST(TokenFile, OneThatIsThereIsReplaced)
{
    const test::TemporaryFolder folder;
    std::ofstream(folder / "token") << "old";
    std::filesystem::permissions(folder / "token", perms::all);
    const TokenFile file(folder / "token");
    EXPECT_EQ(lineOf(folder / "token"), file.token());
    EXPECT_EQ(rightsOf(folder / "token"), perms::owner_read | perms::owner_write);
}

TEST(TokenFile, ItGoesInTheEnd)
{
    std::string path;
    {
        const TokenFile file({});
        path = file.path();
        EXPECT_TRUE(std::filesystem::exists(path));
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TokenFile, EachHasAnotherSecret)
{
    EXPECT_NE(TokenFile({}).token(), TokenFile({}).token());
}

TEST(TokenFile, FolderThatIsMissingIsTold)
{
    const test::TemporaryFolder folder;
    EXPECT_THAT(TokenFile(folder / "none/token").error(), testing::HasSubstr("No such file or directory"));
}

TEST(TokenFile, LinkIsNotFollowed)
{
    const test::TemporaryFolder folder;
    std::ofstream(folder / "other") << "mine";
    std::filesystem::create_symlink(folder / "other", folder / "token");
    EXPECT_THAT(TokenFile(folder / "token").error(), testing::HasSubstr("File exists"));
    EXPECT_EQ(lineOf(folder / "other"), "mine");
}

} // namespace
