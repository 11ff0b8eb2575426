#include "DisplayAPI/MenuCommand.h"

#include "DisplayAPI/Image.h"
#include "utilities/TranslationInfo.h"

#include <gtest/gtest.h>

#include <memory>

using DisplayAPI::Command;
using DisplayAPI::Image;
using DisplayAPI::MenuCommand;
using DisplayAPI::PhonebookItem;

namespace {

constexpr unsigned long ID = 7;
constexpr auto ICON = static_cast<PhonebookItem::IconType>(3);

// Never looked at by the command.
Image* const gImage = reinterpret_cast<Image*>(0x1000);

struct Expected {
    int icon;
    Image* image;
    std::string path;
};

void expectEntry(const MenuCommand& command, const Expected& expected)
{
    EXPECT_EQ(command.getType(), 7);
    EXPECT_EQ(command.getId(), ID);
    EXPECT_EQ(command.getIconType(), expected.icon);
    EXPECT_EQ(command.getImage(), expected.image);
    EXPECT_EQ(command.getImagePath(), expected.path);
    EXPECT_EQ(command.getBasicText(), "Entry");
    EXPECT_FALSE(command.useAlternativeDisplay());
}

TranslationInfo* newLabel()
{
    return new TranslationInfo("Entry", nullptr);
}

} // namespace

TEST(MenuCommandTest, ATranslationWithAnImageHasIconSix)
{
    expectEntry(MenuCommand(newLabel(), gImage, ID), {6, gImage, ""});
}

TEST(MenuCommandTest, ATextWithAnImageHasIconSix)
{
    expectEntry(MenuCommand("Entry", gImage, ID), {6, gImage, ""});
}

TEST(MenuCommandTest, WithoutAnImageThereIsNoIcon)
{
    expectEntry(MenuCommand(newLabel(), static_cast<Image*>(nullptr), ID), {0, nullptr, ""});
    expectEntry(MenuCommand("Entry", static_cast<Image*>(nullptr), ID), {0, nullptr, ""});
}

TEST(MenuCommandTest, ATranslationWithAnIconHasNoImage)
{
    expectEntry(MenuCommand(newLabel(), ICON, ID), {3, nullptr, ""});
}

TEST(MenuCommandTest, ATextWithAnIconHasNoImage)
{
    expectEntry(MenuCommand("Entry", ICON, ID), {3, nullptr, ""});
}

TEST(MenuCommandTest, ALabelAloneHasNeither)
{
    expectEntry(MenuCommand(newLabel(), ID), {0, nullptr, ""});
    expectEntry(MenuCommand("Entry", ID), {0, nullptr, ""});
}

TEST(MenuCommandTest, ATextWithAPathKeepsThePath)
{
    std::string path = "/pictures/entry.png";
    const MenuCommand command("Entry", path, ID);
    path = "changed";
    expectEntry(command, {0, nullptr, "/pictures/entry.png"});
}

TEST(MenuCommandTest, ReturnsACopyOfItsPath)
{
    std::string path = "kept";
    const MenuCommand command("Entry", path, ID);
    command.getImagePath() = "changed";
    EXPECT_EQ(command.getImagePath(), "kept");
}

TEST(MenuCommandTest, AnyIconTravelsThrough)
{
    const MenuCommand command("Entry", static_cast<PhonebookItem::IconType>(4711), ID);
    EXPECT_EQ(command.getIconType(), 4711);
}

TEST(MenuCommandTest, TheIdHas32Bits)
{
    const MenuCommand command("Entry", 0xFFFFFFFFul);
    EXPECT_EQ(command.getId(), 0xFFFFFFFFu);
}

TEST(MenuCommandTest, IsALiveCommand)
{
    auto command = std::make_unique<MenuCommand>("Entry", ID);
    Command* const address = command.get();
    EXPECT_TRUE(Command::exists(address));
    command.reset();
    EXPECT_FALSE(Command::exists(address));
}

TEST(MenuCommandTest, ACopyHasAllFields)
{
    std::string path = "path";
    MenuCommand source("Entry", path, ID);
    source.setUseAlternativeDisplay(true);
    MenuCommand copy(source);
    EXPECT_TRUE(copy.useAlternativeDisplay());
    EXPECT_TRUE(Command::exists(&copy));
    copy.setUseAlternativeDisplay(false);
    expectEntry(copy, {0, nullptr, "path"});
}

TEST(MenuCommandTest, AssignmentCopiesAllFields)
{
    const MenuCommand source("Entry", gImage, ID);
    MenuCommand target("Other", ICON, 8);
    target = source;
    expectEntry(target, {6, gImage, ""});
}
