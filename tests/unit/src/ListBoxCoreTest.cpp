#include "DisplayAPI/ListBoxCore.h"

#include "DisplayAPI/Command.h"
#include "doubles/DisplayPrivateDouble.h"
#include "doubles/Mocks.h"
#include "doubles/Screen.h"
#include "support/RowsOwner.h"
#include "support/RunningToolkit.h"
#include "utilities/TranslationInfo.h"
#include "variants/list/ListItemPrivate.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBoxWithTitle.h"

using namespace DisplayAPI;
using Back = ListBoxCore::Back;
using Box = WatchedWidget<KestrelListBox>;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Return;

namespace {

Command* call()
{
    static Command command("Call", Command::OK);
    return &command;
}

Command* details()
{
    static Command command("Details", Command::RIGHT);
    return &command;
}

Command* leave()
{
    static Command command("Leave", Command::BACK);
    return &command;
}

/// A list that is no `List`: it has commands, an owner and a way to its rows of its own.
class ListBoxCoreTest : public testing::Test {
protected:
    ListBoxCoreTest() { side.addCommandListener(&listener); }
    ~ListBoxCoreTest() override { KestrelApplication::getCurrentApplication()->setLocale(PegString()); }

    std::unique_ptr<ListBoxCore> make(Back back, const ListBoxCore::Commands& commands)
    {
        return std::make_unique<ListBoxCore>(side, &screen, Box(std::in_place_type<KestrelListBoxWithTitle>), back,
                                             commands,
                                             [this](const std::string& locale) { locales.push_back(locale); });
    }

    static void press(ListBoxCore& core, int key) { core.box()->Message(test::keyMessage(key)); }

    static void changeLocale(const char* locale)
    {
        KestrelApplication::getCurrentApplication()->setLocale(ICC::fromUTF8toUNICODE(locale));
    }

    test::StartedToolkit toolkit;
    doubles::Screen screen{"Menu"};
    DisplayablePrivate& side = *screen.getPrivateImpl();
    testing::StrictMock<doubles::MockCommandListener> listener;
    std::vector<std::string> locales;
    ListItemPrivate a{std::string("a"), true};
};

} // namespace

TEST_F(ListBoxCoreTest, KeysRaiseItsOwnCommandsForItsOwner)
{
    const auto core = make(Back::KEY, {&call, &details, &leave});
    core->insert(&a, 0);
    EXPECT_CALL(listener, postCommandAction(call(), &screen));
    EXPECT_CALL(listener, postCommandAction(details(), &screen));
    EXPECT_CALL(listener, postCommandAction(leave(), &screen));
    for (const int key : {PK_OK, PK_RIGHT, PK_LEFT})
        press(*core, key);
}

TEST_F(ListBoxCoreTest, NoCommandIsRaisedWhereThereIsNone)
{
    const auto core = make(Back::NONE, {.back = &leave});
    core->insert(&a, 0);
    for (const int key : {PK_OK, PK_RIGHT, PK_LEFT})
        press(*core, key);
}

TEST_F(ListBoxCoreTest, RowThatGoesBackRaisesTheWayBack)
{
    const auto core = make(Back::KEY_AND_ROW, {&call, &details, &leave});
    EXPECT_EQ(core->size(), 0);
    EXPECT_CALL(listener, postCommandAction(leave(), &screen));
    press(*core, PK_OK);
    press(*core, PK_RIGHT);
}

TEST_F(ListBoxCoreTest, LocaleGoesToTheRowsOnceThereAreSome)
{
    const auto core = make(Back::NONE, {});
    changeLocale("fr");
    EXPECT_THAT(locales, IsEmpty());
    core->insert(&a, 0);
    changeLocale("de");
    KestrelApplication::getCurrentApplication()->setTimeFormat(PegString());
    EXPECT_THAT(locales, ElementsAre("de"));
}

TEST_F(ListBoxCoreTest, TranslatedTitleFollowsTheLanguageWithoutRows)
{
    testing::StrictMock<doubles::MockTranslator> translator;
    EXPECT_CALL(translator, translate("Menu")).WillOnce(Return("Menu")).WillOnce(Return("Menü"));
    TranslationInfo title("Menu", &translator);
    const auto core = make(Back::NONE, {});
    core->setTitle(TranslatedText(&title));
    changeLocale("de");
    EXPECT_EQ(ICC::fromUNICODEtoUTF8(core->box()->title()), "Menü");
}

TEST_F(ListBoxCoreTest, BoxBelongsToItUnlessItIsOnScreen)
{
    auto core = make(Back::NONE, {});
    const std::unique_ptr<PegThing> box(core->box());
    core->ownership().releaseOwnership();
    core.reset();
    EXPECT_EQ(box->Message(test::keyMessage(PK_OK)), 0);
}
