#include "host/lcd/Png.h"

#include "support/TemporaryFolder.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

namespace host {

namespace {

class PngTest : public testing::Test {
protected:
    const test::TemporaryFolder mFolder;
    const std::string mPath = mFolder / "png-test.png";
    const Picture mPicture{4, 2, {0, 1, 2, 3, 3, 2, 1, 0}, {}, 0};
};

TEST_F(PngTest, ReadsWhatItWrites)
{
    ASSERT_EQ(writePng(mPicture, mPath), "");
    const auto read = readPng(mPath);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->width, 4);
    EXPECT_EQ(read->height, 2);
    EXPECT_EQ(read->pixels, mPicture.pixels);
}

TEST_F(PngTest, Scales)
{
    ASSERT_EQ(writePng(mPicture, mPath, 3), "");
    const auto read = readPng(mPath);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->width, 12);
    EXPECT_EQ(read->height, 6);
    EXPECT_EQ(read->pixels[5 * 12 + 2], 3);
    EXPECT_EQ(read->pixels[5 * 12 + 3], 2);
}

TEST_F(PngTest, BytesAreThoseOfTheFile)
{
    ASSERT_EQ(writePng(mPicture, mPath, 2), "");
    std::stringstream file;
    file << std::ifstream(mPath).rdbuf();
    EXPECT_EQ(pngOf(mPicture, 2), file.str());
}

TEST_F(PngTest, SaysWhereItCannotWrite)
{
    EXPECT_THAT(writePng(mPicture, "/nonexistent/a.png"), testing::HasSubstr("cannot write /nonexistent/a.png"));
}

TEST_F(PngTest, ReadsNothingElse)
{
    EXPECT_FALSE(readPng("/nonexistent/a.png"));
    std::ofstream(mPath) << "no picture";
    EXPECT_FALSE(readPng(mPath));
}

} // namespace

} // namespace host
