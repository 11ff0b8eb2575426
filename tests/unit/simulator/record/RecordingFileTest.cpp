#include "simulator/record/RecordingFile.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <sys/stat.h>

namespace {

using simulator::RecordingFile;

std::string contentOf(const std::string& path)
{
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

TEST(RecordingFileTest, LineIsInTheFileAtOnceForItsOwnerAlone)
{
    const test::TemporaryFolder folder;
    RecordingFile file(folder / "r.script");
    EXPECT_EQ(file.error(), "");
    file.write("choose \"Ada\"");
    EXPECT_EQ(contentOf(folder / "r.script"), "choose \"Ada\"\n");
    struct stat status {};
    ASSERT_EQ(stat((folder / "r.script").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(RecordingFileTest, EmptyFileOfEverybodysBecomesItsOwnersAndStays)
{
    const test::TemporaryFolder folder;
    const std::string path = folder / "r.script";
    std::ofstream(path).close();
    ASSERT_EQ(chmod(path.c_str(), 0644), 0);
    EXPECT_EQ(RecordingFile(path).error(), "");
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST(RecordingFileTest, FileWithNothingInItDoesNotStay)
{
    const test::TemporaryFolder folder;
    const std::string path = folder / "r.script";
    EXPECT_EQ(RecordingFile(path).error(), "");
    struct stat status {};
    EXPECT_NE(stat(path.c_str(), &status), 0);
    RecordingFile(path).write("key ok");
    EXPECT_EQ(contentOf(path), "key ok\n");
}

TEST(RecordingFileTest, FileWithSomethingInItStays)
{
    const test::TemporaryFolder folder;
    std::ofstream(folder / "r.script") << "key ok\n";
    RecordingFile file(folder / "r.script");
    EXPECT_EQ(file.error(),
              "There is a file " + (folder / "r.script") + " already; a recording does not overwrite it.");
    file.write("more");
    EXPECT_EQ(contentOf(folder / "r.script"), "key ok\n");
}

TEST(RecordingFileTest, FileThatCannotBeMadeIsTold)
{
    EXPECT_EQ(RecordingFile("/nowhere/r.script").error(),
              "The recording cannot be written to /nowhere/r.script: No such file or directory.");
}

TEST(RecordingFileTest, FullDiskIsToldOnce)
{
    RecordingFile file("/dev/full");
    EXPECT_EQ(file.error(), "");
    file.write("key ok");
    EXPECT_EQ(file.error(), "The recording cannot be written to /dev/full: No space left on device.");
    file.write("key ok");
}

} // namespace
