#include "ImagePrivate.h"

#include "imageprivatefactory.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace DisplayAPI;

namespace {

void expectNothing(const ImagePrivate& image)
{
    EXPECT_EQ(image.pixmap(), nullptr);
    EXPECT_FALSE(image.valid());
    EXPECT_EQ(image.width(), 0);
    EXPECT_EQ(image.height(), 0);
    EXPECT_FALSE(image.isMutable());
}

} // namespace

TEST(ImagePrivateTest, KeepsNothingOfWhatItIsMadeFrom)
{
    const ImagePrivate blank;
    expectNothing(blank);
    expectNothing(ImagePrivate(blank));
    expectNothing(ImagePrivate(reinterpret_cast<PegBitmap*>(0x1000)));
}

TEST(ImagePrivateFactoryTest, EveryFormMakesNull)
{
    ImagePrivate blank;
    std::istringstream stream("data");
    EXPECT_EQ(imageprivatefactory::createPI(std::string("/a/picture.png")), nullptr);
    EXPECT_EQ(imageprivatefactory::createPI("data", 4, 1), nullptr);
    EXPECT_EQ(imageprivatefactory::createPI(&blank), nullptr);
    EXPECT_EQ(imageprivatefactory::createPI(stream), nullptr);
    EXPECT_EQ(imageprivatefactory::createPI(40u, 30u), nullptr);
}
