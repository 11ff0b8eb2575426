#include "DisplayAPI/Image.h"

#include "unit/src/FacadeTest.h"
#include "unit/src/Posted.h"

using namespace DisplayAPI;
using test::From;
using test::Posted;

namespace {

class ImageTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    static void expectNothing(const Image& image)
    {
        EXPECT_EQ(image.getSkinElement(), 0);
        EXPECT_EQ(image.getWidth(), 0u);
        EXPECT_EQ(image.getHeight(), 0u);
        EXPECT_EQ(image.getPixelColour(3, 4), 0u);
        EXPECT_EQ(image.getLocation(), "");
        EXPECT_EQ(image.getPrivateImpl(), nullptr);
    }
};

} // namespace

TEST_P(ImageTest, EveryImageAnswersNothing)
{
    run(GetParam(), [] {
        expectNothing(Image());
        expectNothing(Image(40, 30));
        expectNothing(Image(static_cast<Image::ImageSkinElement>(5)));
        expectNothing(Image(std::string("/a/picture.png")));
        expectNothing(Image("data", 4));
        const Image original;
        expectNothing(Image(original));
    });
}

TEST_P(ImageTest, SettersChangeNothing)
{
    run(GetParam(), [] {
        Image image;
        image.setLocation("/a/picture.png");
        image.setSkinElement(static_cast<Image::ImageSkinElement>(5));
        expectNothing(image);
    });
}

TEST_P(ImageTest, CodesTenAndElevenAnswerZero)
{
    Image image;
    int width = 7;
    int height = 7;
    carryOut(GetParam(), image, 10, [&](GuiRequestEvent& r) { r.returnValue3 = &width; });
    carryOut(GetParam(), image, 11, [&](GuiRequestEvent& r) { r.returnValue3 = &height; });
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
}

TEST_P(ImageTest, AllOtherCodesAreCompletedWithoutEffect)
{
    Image image;
    for (const int code : {-1, 0, 1, 2, 3, 9, 12, 99})
        carryOut(GetParam(), image, code);
    expectNothing(image);
}

INSTANTIATE_TEST_SUITE_P(From, ImageTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

namespace {

class ImagePostTest : public test::SteppedTest {
protected:
    template <typename... Args>
    Posted construction(Args... args)
    {
        std::unique_ptr<Image> image;
        return test::postedBy(gui, [&] { image = std::make_unique<Image>(args...); });
    }
};

} // namespace

TEST_F(ImagePostTest, BlankImagesPostTheirCreationAndWait)
{
    EXPECT_EQ(construction(), (Posted{{2}, true}));
    EXPECT_EQ(construction(40u, 30u), (Posted{{2}, true}));
}

TEST_F(ImagePostTest, OtherImagesPostNothing)
{
    const Image original;
    EXPECT_EQ(construction(static_cast<Image::ImageSkinElement>(5)), (Posted{{}, false}));
    EXPECT_EQ(construction(std::string("/a/picture.png")), (Posted{{}, false}));
    EXPECT_EQ(construction("data", 4), (Posted{{}, false}));
    std::unique_ptr<Image> copy;
    EXPECT_EQ(test::postedBy(gui, [&] { copy = std::make_unique<Image>(original); }), (Posted{{}, false}));
}

TEST_F(ImagePostTest, CreationCarriesWidthAndHeight)
{
    test::Worker worker([] { Image image(40, 30); });
    gui.waitForQueued(1);
    const auto* request = static_cast<const GuiRequestEvent*>(gui.messages().front().pData);
    EXPECT_EQ(request->intParam1, 40);
    EXPECT_EQ(request->intParam2, 30);
    while (!worker.hasReturned())
        gui.step();
}

TEST_F(ImagePostTest, DestructorWaits)
{
    auto image = std::make_unique<Image>();
    EXPECT_EQ(test::postedBy(gui, [&] { image.reset(); }), (Posted{{1}, true}));
}
