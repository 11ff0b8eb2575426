#include "pictures/PictureTest.h"

#include "host/lcd/Geometry.h"
#include "host/lcd/Lcd.h"
#include "pictures/ReferencePictures.h"
#include "presentation/PRESCPresentationManager.h"
#include "toolkit/PegFunctions.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBoxItem.h"
#include "widgets/KestrelListBoxWP1.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <cstdlib>

namespace {

const ReferencePictures REFERENCES(DISPLAYAPI_PICTURE_REFERENCES, DISPLAYAPI_PICTURE_OUTPUT);

bool isUpdating()
{
    const char* value = std::getenv("DISPLAYAPI_UPDATE_PICTURES");
    return value != nullptr && std::string(value) == "1";
}

} // namespace

PictureTest::PictureTest() = default;

PictureTest::~PictureTest()
{
    pegCleanUp();
}

void PictureTest::start(host::Variant variant)
{
    host::setVariant(variant);
    pegInit();
}

KestrelListBox& PictureTest::showList(const std::string& title, const std::vector<std::string>& rows)
{
    if (host::variant() == host::Variant::WP1)
        mList = new KestrelListBoxWP1;
    else
        mList = new KestrelListBoxWithTitle;
    mList->Resize(host::rectAt(0, 0, host::Lcd::current()->width(), host::Lcd::current()->height()));
    mList->setTitle(text(title));
    for (const auto& row : rows) {
        mItems.push_back(std::make_unique<KestrelListBoxItem>(text(row)));
        mList->append(mItems.back().get());
    }
    gpPresent->Add(mList);
    gpPresent->MoveFocusTree(mList);
    return *mList;
}

void PictureTest::press(PegKey key, int times)
{
    PegMessage message;
    message.wType = PM_KEY;
    message.iData = key;
    for (int i = 0; i < times; ++i) {
        host::Lcd::current()->paint();
        mList->Message(message);
    }
}

void PictureTest::expectPicture(const std::string& name)
{
    host::Lcd::current()->paint();
    const host::Picture actual = host::Lcd::current()->picture();
    EXPECT_EQ(isUpdating() ? REFERENCES.update(name, actual) : REFERENCES.compare(name, actual), "");
}

PegString PictureTest::text(const std::string& utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

std::vector<std::string> rooms(int count)
{
    std::vector<std::string> rows;
    for (int i = 1; i <= count; ++i)
        rows.push_back("Room " + std::to_string(i));
    return rows;
}
