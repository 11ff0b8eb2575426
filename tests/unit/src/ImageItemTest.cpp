#include "DisplayAPI/ImageItem.h"

#include "DisplayAPI/Image.h"
#include "support/TestWidget.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "utilities/Wait.h"

using namespace DisplayAPI;
using test::From;

namespace {

class ImageItemTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    Image image;
    ImageItem item{"label", &image, &image};
};

/// Notes that it has been woken.
class NotingWait : public Wait {
public:
    void wakeUp() override { woken = true; }

    bool woken = false;
};

} // namespace

TEST_P(ImageItemTest, KeepsNothingOfWhatItIsGiven)
{
    run([&] {
        item.setAltText("text");
        item.setImage(&image);
        item.setReadOnly(true);
        item.setInformAppOnOk(true);
        item.setContextMenuArrow(true);
        item.localeChanged("de");
        EXPECT_EQ(item.getAltText(), "");
        EXPECT_FALSE(item.isReadOnly());
        EXPECT_FALSE(item.hasContextMenuArrow());
        EXPECT_EQ(item.getPrivateImpl(), nullptr);
        EXPECT_NE(item.getImage(), &image);
    });
}

TEST_P(ImageItemTest, GetImageIsTheSameBlankImageForEveryItemAndCall)
{
    run([&] {
        ImageItem other("", nullptr, nullptr);
        Image* const blank = item.getImage();
        ASSERT_NE(blank, nullptr);
        EXPECT_EQ(item.getImage(), blank);
        EXPECT_EQ(other.getImage(), blank);
        EXPECT_EQ(blank->getWidth(), 0u);
    });
}

TEST_P(ImageItemTest, IsABaseItem)
{
    run([&] {
        EXPECT_EQ(item.getType(), "baseItem");
        EXPECT_EQ(item.getID(), 0);
    });
}

INSTANTIATE_TEST_SUITE_P(From, ImageItemTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const testing::TestParamInfo<From>& test) { return test::nameOf(test.param); });

TEST(ImageItemRequestTest, NoRequestIsEvenCompleted)
{
    ImageItem item("", nullptr, nullptr);
    for (const int code : {-1, 0, 1, 99}) {
        NotingWait wait;
        GuiRequestEvent request(&item, code);
        request.setWaitCondition(&wait);
        item.processGuiRequest(request);
        EXPECT_FALSE(wait.woken);
    }
}
