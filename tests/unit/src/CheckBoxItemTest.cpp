#include "DisplayAPI/CheckBoxItem.h"

#include "CheckBoxItemPrivate.h"
#include "DisplayAPI/Image.h"
#include "doubles/Mocks.h"
#include "support/RowsOwner.h"
#include "unit/src/Posted.h"
#include "unit/src/RowFacadeTest.h"
#include "utilities/TranslationInfo.h"
#include "widgets/KestrelApplication.h"

using namespace DisplayAPI;
using test::Posted;
using test::textOf;
using testing::ElementsAre;
using testing::Return;

namespace {

class CheckBoxItemTest : public test::RowFacadeTest<CheckBoxItem> {
protected:
    bool isChecked()
    {
        bool checked = false;
        run([&] { checked = row->isChecked(); });
        return checked;
    }

    Image* const image = nullptr;
    TranslationInfo key{"key", nullptr};
};

TEST_P(CheckBoxItemTest, ShowsItsTextAndABoxOnEveryVariant)
{
    make(std::string("Monday"), image, false, false);
    EXPECT_EQ(text(), "Monday");
    EXPECT_THAT(texts(), ElementsAre("Monday", "unchecked"));
    make(&key, image, true, true);
    EXPECT_EQ(text(), "key");
}

TEST_P(CheckBoxItemTest, IsCheckedByWhoeverSaysSo)
{
    make(std::string("Monday"), image, false, false);
    EXPECT_FALSE(isChecked());
    run([&] { row->setChecked(true); });
    EXPECT_TRUE(isChecked());
    EXPECT_THAT(texts(), ElementsAre("Monday", "checked"));
    run([&] { row->swapChecked(); });
    EXPECT_FALSE(isChecked());
    run([&] {
        row->setCheckedPassive(true);
        row->setAutoCheck(true);
        row->setPartyDetails(nullptr, &key, CheckBoxItem::BRANCH_LAST);
        EXPECT_EQ(row->getPartyDetails(), nullptr);
    });
    EXPECT_FALSE(isChecked());
}

TEST_P(CheckBoxItemTest, FurtherRequestMakesAnotherRowInThePlaceOfTheFormer)
{
    make(std::string("Monday"), image, false, false);
    run([&] { row->setChecked(true); });
    const auto fill = [&](GuiRequestEvent& request) {
        request.stringParam1 = "Tuesday";
        request.ptrParam1 = &key;
    };
    carryOut(from(), *row, 10, fill);
    EXPECT_EQ(text(), "Tuesday");
    EXPECT_FALSE(isChecked());
    carryOut(from(), *row, 11, fill);
    EXPECT_EQ(text(), "key");
}

/// The list item's own request to do so, too.
TEST_P(CheckBoxItemTest, DeletedRowIsNoneForEither)
{
    for (const int code : {15, 2}) {
        make(std::string("Monday"), image, false, false);
        carryOut(from(), *row, code);
        EXPECT_EQ(row->getPrivateImplemetation(), nullptr);
        EXPECT_FALSE(isChecked());
        EXPECT_EQ(text(), "");
    }
}

INSTANTIATE_ON_VARIANTS(CheckBoxItemTest);

using QueuedCheckBoxItemTest = test::SteppedTest;

TEST_F(QueuedCheckBoxItemTest, MakingWaitsAndSoDoesDeleting)
{
    TranslationInfo key("key", nullptr);
    std::unique_ptr<CheckBoxItem> row;
    EXPECT_EQ(test::postedBy(gui, [&] { row = std::make_unique<CheckBoxItem>("Monday", nullptr, true, true); }),
              (Posted{{10}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { row.reset(); }), (Posted{{15}, true}));
    EXPECT_EQ(test::postedBy(gui, [&] { row = std::make_unique<CheckBoxItem>(&key, nullptr, true, true); }),
              (Posted{{11}, true}));
}

/// On the GUI thread the image stays behind.
TEST_F(QueuedCheckBoxItemTest, WorkerHandsTheImageOnWithItsTranslationAlone)
{
    TranslationInfo key("key", nullptr);
    Image picture{Image::NO_SKIN_ELEMENT};
    for (const int code : {10, 11}) {
        std::unique_ptr<CheckBoxItem> row;
        const test::Worker worker([&] {
            row = code == 10 ? std::make_unique<CheckBoxItem>("Monday", &picture, true, true)
                             : std::make_unique<CheckBoxItem>(&key, &picture, true, true);
        });
        EXPECT_TRUE(worker.isBlocked());
        const auto& record = *static_cast<GuiRequestEvent*>(gui.messages().at(0).pData);
        EXPECT_EQ(record.getType(), code);
        EXPECT_EQ(record.stringParam1, code == 10 ? "Monday" : "");
        EXPECT_EQ(record.ptrParam1, code == 10 ? nullptr : &key);
        EXPECT_EQ(record.ptrParam2, code == 10 ? nullptr : &picture);
        gui.runAll();
    }
}

TEST(CheckBoxItemPrivateTest, TranslationFollowsTheApplicationsLanguage)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Mon")).WillOnce(Return("Monday")).WillOnce(Return("Montag"));
    TranslationInfo text("Mon", &translator);
    CheckBoxItemPrivate side(&text, nullptr);
    EXPECT_EQ(textOf(side.getKestrelListItem()), "Monday");
    EXPECT_EQ(side.Message({.wType = 0x401A}), 0);
    EXPECT_EQ(textOf(side.getKestrelListItem()), "Montag");
    EXPECT_EQ(side.Message({.wType = PM_TIMER}), 0);
}

TEST(CheckBoxItemPrivateTest, PlainTextAndNoTranslationStayAsTheyAre)
{
    CheckBoxItemPrivate plain(std::string("Mon"));
    plain.localeChanged("de");
    EXPECT_EQ(textOf(plain.getKestrelListItem()), "Mon");
    CheckBoxItemPrivate empty(static_cast<TranslationInfo*>(nullptr), nullptr);
    empty.localeChanged("de");
    EXPECT_EQ(textOf(empty.getKestrelListItem()), "");
}

TEST(CheckBoxItemPrivateTest, ToolkitRowGoesWithWhoeverOwnsIt)
{
    std::unique_ptr<KestrelListBoxItem> item;
    {
        CheckBoxItemPrivate side(std::string("Mon"));
        EXPECT_TRUE(side.hasOwnership());
        side.releaseOwnership();
        EXPECT_FALSE(side.hasOwnership());
        item.reset(side.getKestrelListItem());
    }
    EXPECT_EQ(textOf(item.get()), "Mon");
    CheckBoxItemPrivate side(std::string("Mon"));
    side.releaseOwnership();
    side.gainOwnership(); // or else it leaks
}

} // namespace
