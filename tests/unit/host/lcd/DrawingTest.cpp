#include "host/lcd/Drawing.h"

#include <gmock/gmock.h>

using testing::AllOf;
using testing::Each;
using testing::HasSubstr;
using testing::SizeIs;

namespace host {

namespace {

TEST(DrawingTest, WithoutItsSharedObjectThereIsNothingToDrawWith)
{
    testing::internal::CaptureStderr();
    const std::unique_ptr<Drawing> none(loadDrawing("libnowhere.so"));
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                AllOf(HasSubstr("displayapi: "), HasSubstr("libnowhere.so"), HasSubstr("Going on without pictures")));
    EXPECT_EQ(none->newShaper(fontFolders()), nullptr);
    EXPECT_TRUE(none->decode("", 10, 10).pixels.empty());
    EXPECT_THAT(none->write({1, 1, {0}}, "a.png"),
                AllOf(HasSubstr("cannot write a.png: "), HasSubstr("libnowhere.so")));
    const TextReading reading = none->read(u"\u05D0\u05D1");
    EXPECT_FALSE(reading.fromTheRight);
    EXPECT_THAT(reading.levels, AllOf(SizeIs(2), Each(0)));
    EXPECT_THAT(reading.begins, AllOf(SizeIs(2), Each(true)));
}

TEST(DrawingTest, SharedObjectOfAnotherKindIsRefused)
{
    testing::internal::CaptureStderr();
    const std::unique_ptr<Drawing> none(loadDrawing("libdisplayapi_host.so"));
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("displayapiCreateDrawing"));
    EXPECT_EQ(none->newShaper(fontFolders()), nullptr);
}

TEST(DrawingTest, LoadedOnceAndKept)
{
    EXPECT_EQ(&drawing(), &drawing());
    EXPECT_NE(drawing().newShaper(fontFolders()), nullptr);
}

} // namespace

} // namespace host
