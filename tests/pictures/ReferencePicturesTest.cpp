#include "pictures/ReferencePictures.h"

#include "host/lcd/Png.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;

namespace {

class ReferencePicturesTest : public testing::Test {
protected:
    ReferencePicturesTest() { std::filesystem::create_directories(mFolder / "reference"); }
    ~ReferencePicturesTest() override { std::filesystem::remove_all(mFolder); }

    const std::filesystem::path mFolder =
        std::filesystem::path(testing::TempDir()) /
        (std::string("pictures-") + testing::UnitTest::GetInstance()->current_test_info()->name());
    const ReferencePictures mReferences{mFolder / "reference", mFolder / "output"};
    host::Picture mPicture{2, 2, {0, 1, 2, 3}, {}, 0};
};

TEST_F(ReferencePicturesTest, MissingReferenceIsWrong)
{
    EXPECT_THAT(mReferences.compare("screen", mPicture), HasSubstr("There is no reference picture"));
    EXPECT_TRUE(std::filesystem::exists(mFolder / "output/screen.png"));
}

TEST_F(ReferencePicturesTest, EqualPicturesAreRight)
{
    ASSERT_EQ(mReferences.update("screen", mPicture), "");
    EXPECT_EQ(mReferences.compare("screen", mPicture), "");
    EXPECT_FALSE(std::filesystem::exists(mFolder / "output"));
}

TEST_F(ReferencePicturesTest, OneWrongPixelIsFoundAndShown)
{
    ASSERT_EQ(mReferences.update("screen", mPicture), "");
    mPicture.pixels[2] = 0;
    EXPECT_THAT(mReferences.compare("screen", mPicture), HasSubstr("1 pixels differ"));
    const auto difference = host::readPng((mFolder / "output/screen-difference.png").string());
    ASSERT_TRUE(difference);
    EXPECT_THAT(difference->pixels, testing::ElementsAre(0, 1, 3, 1));
}

TEST_F(ReferencePicturesTest, AnotherSizeIsWrong)
{
    ASSERT_EQ(mReferences.update("screen", mPicture), "");
    const host::Picture wide{4, 1, {0, 1, 2, 3}, {}, 0};
    EXPECT_THAT(mReferences.compare("screen", wide), HasSubstr("The reference is 2 x 2, the screen 4 x 1"));
}

TEST_F(ReferencePicturesTest, UnwritableFolderIsAnError)
{
    const ReferencePictures nowhere{mFolder / "nowhere", mFolder / "output"};
    EXPECT_THAT(nowhere.update("screen", mPicture), HasSubstr("cannot write"));
}

} // namespace
