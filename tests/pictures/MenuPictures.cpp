#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/MenuCommand.h"
#include "pictures/StatusScreens.h"
#include "variants/menu/ContextMenuPrivate.h"

namespace {

using DisplayAPI::Command;
using DisplayAPI::ContextMenuPrivate;
using DisplayAPI::ContextMenuPrivateWP1;
using DisplayAPI::ContextMenuSide;
using DisplayAPI::MenuCommand;
using DisplayAPI::PhonebookItem;

/// Context menus over a list of rooms.
class MenuPictures : public StatusScreens {
protected:
    ~MenuPictures() override
    {
        if (mMenu->getWidget()->Parent() == nullptr)
            return;
        mMenu->gainOwnership();
        gpPresent->Remove(mMenu->getWidget());
    }

    /// As a display does it.
    ContextMenuSide& showMenu(bool wayBack = false)
    {
        if (isTwoLines())
            mMenu = std::make_unique<ContextMenuPrivateWP1>(nullptr, wayBack);
        else
            mMenu = std::make_unique<ContextMenuPrivate>(nullptr);
        showList("Rooms", rooms(9));
        mMenu->releaseOwnership();
        gpPresent->Add(mMenu->getWidget());
        return *mMenu;
    }

    void add(const std::string& label, int icon = 0, Command* second = nullptr, bool marked = false)
    {
        const auto type = static_cast<PhonebookItem::IconType>(icon);
        mCommands.push_back(std::make_unique<MenuCommand>(label, type, mCommands.size()));
        mMenu->addCommand(mCommands.back().get(), second, marked);
    }

    void pressInMenu(int key, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            mMenu->getWidget()->Message({.wType = PM_KEY, .iData = key});
            host::Lcd::current()->paint();
        }
    }

    std::vector<std::unique_ptr<MenuCommand>> mCommands;
    std::unique_ptr<ContextMenuSide> mMenu;
};

} // namespace

TEST_P(MenuPictures, IconsMarksAndArrows)
{
    showMenu();
    Command more("More", Command::ITEM);
    add("Call", 1);
    add("Ελένη Ιωάννου", 2, &more);
    add("Silent", 0, nullptr, true);
    add("Picture", PhonebookItem::ICON_IMAGE);
    pressInMenu(PK_DOWN);
    expectScreen("menu");
}

TEST_P(MenuPictures, MoreThanFit)
{
    showMenu();
    for (int i = 1; i <= 9; ++i)
        add("Command " + std::to_string(i), i);
    pressInMenu(PK_DOWN, 6);
    expectScreen("menu-many");
    pressInMenu(PK_DOWN, 3);
    expectScreen("menu-round");
}

TEST_P(MenuPictures, WayBack)
{
    showMenu(true);
    add("Call");
    pressInMenu(PK_DOWN);
    expectScreen("menu-back");
}

TEST_P(MenuPictures, Empty)
{
    showMenu();
    expectScreen("menu-empty");
}

TEST_P(MenuPictures, UnderAStatusLine)
{
    showMenu();
    for (const char* label : {"Call", "Edit", "Delete", "Copy", "Search"})
        add(label);
    mMenu->setSysWindowText("Line 1", 0);
    mMenu->setSysWindowSize(1);
    expectScreen("menu-status-line");
}

TEST_P(MenuPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    showMenu();
    Command more("", Command::ITEM);
    for (const char* label : {"اتصال", "تعديل", "حذف", "نسخ", "بحث", "A very long command that has no room"})
        add(label, 1, &more);
    pressInMenu(PK_UP);
    expectScreen("menu-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, MenuPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
