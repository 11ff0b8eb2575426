#include "host/lcd/PictureFile.h"

#include "host/lcd/Png.h"
#include "support/LogLines.h"
#include "support/TemporaryFolder.h"

#include <fstream>
#include <numeric>
#include <sys/stat.h>

namespace host {

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Four pixels: transparent, black of which a third covers, black, white.
constexpr char SEE_THROUGH[] = "\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0\0\x04\0\0\0\x01\x08\x06\0\0\0\xF9\x3C\x0F\xCD"
                               "\0\0\0\x10IDAT\x78\xDA\x63\x60\x80\x80\x50\x20\xFE\x0F\x02\0\x11\xFF\x05\x51"
                               "\xB5\x9E\x07\x39\0\0\0\0IEND\xAE\x42\x60\x82";

class PictureFileTest : public testing::Test {
protected:
    void write(const std::string& bytes) const { std::ofstream(mPath, std::ios::binary) << bytes; }

    void write(int width, int height, std::vector<std::uint8_t> pixels) const
    {
        ASSERT_EQ(writePng({.width = width, .height = height, .pixels = std::move(pixels)}, mPath), "");
    }

    std::string written() const
    {
        std::ifstream file(mPath, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    Picture read(int width = 100, int height = 100) const { return readPicture(mPath, width, height); }
    std::vector<LogLine> complaints() const { return test::linesOf(mLog, "host::PictureFile"); }

    const test::TemporaryFolder mFolder;
    const std::string mPath = mFolder / "picture.png";
    const LogCapture mLog;
};

TEST_F(PictureFileTest, LevelsOfThePanelStayAsTheyAre)
{
    write(4, 2, {0, 1, 2, 3, 3, 2, 1, 0});
    const Picture picture = read();
    EXPECT_EQ(picture.width, 4);
    EXPECT_EQ(picture.height, 2);
    EXPECT_THAT(picture.pixels, ElementsAre(0, 1, 2, 3, 3, 2, 1, 0));
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(PictureFileTest, TransparentPixelsAreBare)
{
    write({SEE_THROUGH, sizeof SEE_THROUGH - 1});
    EXPECT_THAT(read().pixels, ElementsAre(0, 1, 3, 0));
}

TEST_F(PictureFileTest, ScalesDownToFitAndKeepsTheShape)
{
    write(40, 20, std::vector<std::uint8_t>(800, 3));
    for (const auto& [width, height] : {std::pair{20, 100}, {100, 10}, {20, 10}}) {
        const Picture picture = read(width, height);
        EXPECT_EQ(picture.width, 20);
        EXPECT_EQ(picture.height, 10);
        EXPECT_THAT(picture.pixels, Each(3));
    }
}

TEST_F(PictureFileTest, ThinPictureKeepsAPixel)
{
    write(300, 1, std::vector<std::uint8_t>(300, 3));
    const Picture picture = read(10, 10);
    EXPECT_EQ(picture.width, 10);
    EXPECT_EQ(picture.height, 1);
}

TEST_F(PictureFileTest, InBetweenIsDithered)
{
    std::vector<std::uint8_t> lines(64 * 64);
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i] = i % 2 == 0 ? 3 : 0;
    write(64, 64, lines);
    const Picture picture = read(32, 32);
    const int ink = std::accumulate(picture.pixels.begin(), picture.pixels.end(), 0);
    EXPECT_NEAR(ink, 32 * 32 * 3 / 2, 32);
    EXPECT_THAT(picture.pixels, testing::Contains(1));
    EXPECT_THAT(picture.pixels, testing::Contains(2));
}

TEST_F(PictureFileTest, MissingFileIsNoPictureAndNamedOnce)
{
    EXPECT_EQ(read().width, 0);
    ASSERT_EQ(complaints().size(), 1u);
    EXPECT_THAT(complaints().front().text, HasSubstr(mPath));
    EXPECT_EQ(complaints().front().level, 3);
}

TEST_F(PictureFileTest, NoPathIsNoPictureAndNoLine)
{
    EXPECT_EQ(readPicture("", 10, 10).width, 0);
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(PictureFileTest, NoRoomIsNoPicture)
{
    write(1, 1, {3});
    EXPECT_THAT(read(0, 10).pixels, IsEmpty());
    EXPECT_THAT(read(10, -1).pixels, IsEmpty());
}

TEST_F(PictureFileTest, WhatIsNoFileIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(mPath.c_str(), 0600), 0);
    EXPECT_EQ(read().width, 0);
    EXPECT_EQ(readPicture(mFolder.path(), 10, 10).width, 0);
    EXPECT_EQ(complaints().size(), 2u);
}

TEST_F(PictureFileTest, TruncatedFileIsNoPicture)
{
    write(4, 2, {0, 1, 2, 3, 3, 2, 1, 0});
    const std::string whole = written();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        write(whole.substr(0, length));
        EXPECT_EQ(read().width, 0) << length;
    }
    EXPECT_EQ(complaints().size(), whole.size());
}

TEST_F(PictureFileTest, BytesThatAreWrongDoNoHarm)
{
    const std::string whole(SEE_THROUGH, sizeof SEE_THROUGH - 1);
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string broken = whole;
        broken[i] = static_cast<char>(~broken[i]);
        write(broken);
        const Picture picture = read();
        EXPECT_EQ(picture.pixels.size(), static_cast<std::size_t>(picture.width * picture.height));
    }
}

TEST_F(PictureFileTest, HugeDimensionsAreRefused)
{
    write(4, 2, {0, 1, 2, 3, 3, 2, 1, 0});
    std::string huge = written();
    huge.replace(16, 8, "\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF", 8);
    write(huge);
    EXPECT_EQ(read().width, 0);
    write(4096, 1025, std::vector<std::uint8_t>(4096 * 1025));
    EXPECT_EQ(read().width, 0);
    write(4096, 1024, std::vector<std::uint8_t>(4096 * 1024));
    EXPECT_EQ(read().width, 100);
    EXPECT_EQ(complaints().size(), 2u);
}

TEST_F(PictureFileTest, HugeFileIsNotRead)
{
    write({SEE_THROUGH, sizeof SEE_THROUGH - 1});
    std::filesystem::resize_file(mPath, MOST_PICTURE_BYTES + 1);
    EXPECT_EQ(read().width, 0);
    std::filesystem::resize_file(mPath, MOST_PICTURE_BYTES);
    EXPECT_EQ(read().width, 4);
}

} // namespace

} // namespace host
