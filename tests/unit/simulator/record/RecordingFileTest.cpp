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
