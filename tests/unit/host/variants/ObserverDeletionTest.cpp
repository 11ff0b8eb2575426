// Whoever observes a display deletes the screen in the middle of what it is told of: of the first, second, third change
// that an operation or a key makes, for as many as there are.

#include "DisplayAPI/ContextMenu.h"
#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/ExclusiveList.h"
#include "DisplayAPI/ExpandingTreeList.h"
#include "DisplayAPI/Form.h"
#include "DisplayAPI/IdleDisplay.h"
#include "DisplayAPI/KVXList.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupCall.h"
#include "DisplayAPI/PopupConfirm.h"
#include "DisplayAPI/PopupDialer.h"
#include "DisplayAPI/PopupNotification.h"
#include "DisplayAPI/PopupProgress.h"
#include "DisplayAPI/PopupTextField.h"
#include "DisplayAPI/SearchList.h"
#include "DisplayAPI/TabScreen.h"
#include "DisplayAPI/TextBox.h"
#include "DisplayAPI/TextField.h"
#include "DisplayAPI/Tree.h"
#include "presentation/PRESCPresentationManager.h"
#include "support/VirtualTime.h"
#include "unit/host/variants/OnPanel.h"
#include "unit/host/variants/Told.h"
#include "widgets/KestrelApplication.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

using namespace DisplayAPI;

namespace {

/// A screen, what its application does to it, and what outlives it.
struct Attacked {
    std::unique_ptr<Displayable> screen;
    std::vector<std::function<void()>> acts;
    std::vector<std::shared_ptr<void>> others;
    std::shared_ptr<std::vector<ListItem*>> removed = std::make_shared<std::vector<ListItem*>>(); ///< if it still lives
};

class ObserverDeletionTest : public testing::TestWithParam<host::Variant> {
protected:
    ObserverDeletionTest()
    {
        below.append("below");
        display.show();
    }

    ~ObserverDeletionTest() override { display.setCurrent(nullptr); }

    void attack(const std::function<Attacked()>& make)
    {
        const std::size_t count = actsOn(make()).size();
        int deletions = 0;
        for (std::size_t act = 0; act < count; ++act)
            for (int telling = 1; deletesAt(telling, make(), act); ++telling)
                ++deletions;
        EXPECT_GT(deletions, 3) << "too little is told of";
    }

    test::VirtualTime time;
    test::OnPanel gui{GetParam()};
    Display display{host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr};
    List below{0};

private:
    static void press(int key) { gpPresent->Focus()->Message({.wType = PM_KEY, .iData = key}); }

    /// Its own, and what can be done to any screen that is shown.
    std::vector<std::function<void()>> actsOn(const Attacked& attacked)
    {
        std::vector<std::function<void()>> acts = attacked.acts;
        for (const int key :
             std::initializer_list<int>{PK_UP, PK_DOWN, PK_LEFT, PK_RIGHT, PK_OK, PK_0 + 4, PK_STAR, PK_HASH})
            acts.emplace_back([key] { press(key); });
        acts.emplace_back([] {
            press(PK_OK);
            test::VirtualTime::pass(2000);
        });
        acts.emplace_back([this] { display.setCurrent(&below); });
        acts.emplace_back([this, screen = attacked.screen.get()] { display.setCurrent(screen); });
        acts.emplace_back([this] { display.localeChanged("de"); });
        acts.emplace_back([] { test::VirtualTime::pass(2000); });
        return acts;
    }

    /// False where the act has fewer changes to tell of.
    bool deletesAt(int telling, Attacked attacked, std::size_t act)
    {
        display.setCurrent(&below);
        display.setCurrent(attacked.screen.get());
        int told = 0;
        {
            const test::Told observer(display, [&] {
                if (++told == telling)
                    attacked.screen.reset();
            });
            actsOn(attacked)[act]();
        }
        if (attacked.screen != nullptr)
            for (const ListItem* row : *attacked.removed)
                delete row;
        display.setCurrent(nullptr);
        KestrelApplication::getCurrentApplication()->setLocale(PegString());
        return told >= telling;
    }
};

template <typename Screen>
void addRows(Screen& screen)
{
    for (const char* row : {"Ada", "Bert", "Cleo", "Dora", "Emil", "Fritz"})
        screen.append(row);
}

/// What all screens of rows can.
template <typename Screen>
Attacked ofRows(std::unique_ptr<Screen> made)
{
    Screen* const screen = made.get();
    addRows(*screen);
    return {std::move(made),
            {[=] { screen->append("Gerd"); }, [=] { screen->append(new ListItem("Gerd", false)); },
             [=] { screen->insertAt(new ListItem("Gerd", false), 1); }, [=] { delete screen->removeAt(0); },
             [=] { screen->setSelectedIndex(2); }, [=] { screen->setTitle("Names"); }, [=] { screen->clear(); }},
            {}};
}

template <typename Screen>
Attacked ofList(std::unique_ptr<Screen> made)
{
    Screen* const screen = made.get();
    Attacked attacked = ofRows(std::move(made));
    const auto removed = attacked.removed;
    attacked.acts.emplace_back([=] {
        *removed = {screen->getItems()[1]};
        screen->remove(removed->front());
    });
    attacked.acts.emplace_back([=] {
        *removed = {screen->getItems()[1]};
        screen->replace(removed->front(), new ListItem("Gerd", false));
    });
    attacked.acts.emplace_back([=] {
        *removed = screen->getItems();
        screen->removeAll();
    });
    return attacked;
}

/// What popups can, each as far as it does.
template <typename Popup>
Attacked ofPopup(std::unique_ptr<Popup> made)
{
    Popup* const popup = made.get();
    const auto first = std::make_shared<MenuCommand>("Call", 1UL);
    const auto second = std::make_shared<MenuCommand>("Send", 2UL);
    Attacked attacked{std::move(made), {}, {first, second}};
    const auto add = [&attacked](std::function<void()> act) { attacked.acts.push_back(std::move(act)); };
    if constexpr (requires { popup->setText("text"); })
        add([=] { popup->setText("text"); });
    if constexpr (requires { popup->addCommand(first.get()); }) {
        popup->addCommand(first.get());
        add([=] { popup->addCommand(second.get()); });
    }
    if constexpr (requires { popup->removeCommand(first.get()); })
        add([=] { popup->removeCommand(first.get()); });
    if constexpr (requires { popup->clearCommands(); })
        add([=] { popup->clearCommands(); });
    if constexpr (requires { popup->setStimulusText("text"); })
        add([=] { popup->setStimulusText("text"); });
    if constexpr (requires { popup->setLineEditText("12"); })
        add([=] { popup->setLineEditText("12"); });
    if constexpr (requires { popup->updateProgressBar(5); })
        add([=] { popup->updateProgressBar(5); });
    if constexpr (requires { popup->dismiss(); })
        add([=] { popup->dismiss(); });
    return attacked;
}

TEST_P(ObserverDeletionTest, ListMayGo)
{
    attack([] { return ofList(std::make_unique<List>(0)); });
}

TEST_P(ObserverDeletionTest, ExclusiveListMayGo)
{
    attack([] { return ofList(std::make_unique<ExclusiveList>()); });
}

TEST_P(ObserverDeletionTest, KVXListMayGo)
{
    attack([] { return ofList(std::make_unique<KVXList>()); });
}

TEST_P(ObserverDeletionTest, SearchListMayGo)
{
    attack([] {
        auto made = std::make_unique<SearchList>();
        SearchList* const list = made.get();
        Attacked attacked = ofRows(std::move(made));
        attacked.acts.emplace_back([=] { list->showSearchPopup(); });
        attacked.acts.emplace_back([=] { list->setSearchText("a"); });
        attacked.acts.emplace_back([=] { list->setCountIndicator(3); });
        return attacked;
    });
}

TEST_P(ObserverDeletionTest, ExpandingTreeListMayGo)
{
    attack([] {
        auto made = std::make_unique<ExpandingTreeList>(true);
        ExpandingTreeList* const list = made.get();
        return Attacked{std::move(made), {[=] { list->setTitle("Calls"); }, [=] { list->clear(); }}, {}};
    });
}

TEST_P(ObserverDeletionTest, TreeMayGo)
{
    attack([] {
        auto made = std::make_unique<Tree>();
        Tree* const tree = made.get();
        TreeNode* const node = tree->addNode("Network", 1);
        tree->addNode("Sound", 2);
        return Attacked{std::move(made),
                        {[=] { tree->addNode("Display", 3); }, [=] { tree->expandNode(node, true); },
                         [=] { tree->collapseNode(node); }, [=] { tree->collapseTreeToLevel(1); },
                         [=] { tree->setTreeName("Settings"); }},
                        {}};
    });
}

TEST_P(ObserverDeletionTest, FormMayGo)
{
    attack([] {
        auto made = std::make_unique<Form>(Form::FormProportionType{});
        Form* const form = made.get();
        const auto field = [](const char* label) {
            return new TextField(label, TextField::IconImage{}, "text", TextField::FieldType{});
        };
        TextField* const name = field("Name");
        TextField* const number = field("Number");
        form->append(name);
        form->append(number);
        return Attacked{std::move(made),
                        {[=] { form->append(field("Town")); }, [=] { form->setSelected(number); },
                         [=] { form->setReadonly(true); }, [=] { form->setTitle("Contact"); },
                         [=] { name->setString("Ada"); }, [=] { name->setLabel("First name"); },
                         [=] { name->setReadOnlyMode(true); }, [=] { form->clear(); }},
                        {}};
    });
}

TEST_P(ObserverDeletionTest, TextBoxMayGo)
{
    attack([] {
        auto made = std::make_unique<TextBox>("Note", "some text");
        TextBox* const box = made.get();
        static std::string text = "other";
        return Attacked{std::move(made),
                        {[=] { box->setText(text, true); }, [=] { box->insert(text, 1); }, [=] { box->setMaxSize(2); },
                         [=] { box->setTitle("Notes"); }, [=] { box->clear(); }, [=] { box->hide(); }},
                        {}};
    });
}

TEST_P(ObserverDeletionTest, TabScreenMayGo)
{
    attack([] {
        auto made = std::make_unique<TabScreen>(TabScreen::CALLS, true);
        TabScreen* const tabs = made.get();
        std::vector<std::shared_ptr<void>> pages;
        const auto page = [&pages] {
            const auto list = std::make_shared<List>(0);
            addRows(*list);
            pages.push_back(list);
            return list.get();
        };
        List* const all = page();
        tabs->addTab("All", all, true);
        tabs->addTab("Missed", page(), false);
        List* const other = page();
        return Attacked{std::move(made),
                        {[=] { tabs->addTab("Dialled", other, false); }, [=] { tabs->addTab("Dialled", other, true); },
                         [=] { tabs->setCurrentDisplayable(other); },
                         [=] { tabs->setCurrentDisplayableForTabAtIndex(0, other); }, [=] { tabs->removeTab(all); },
                         [=] { tabs->removeTabAtIndex(0); }, [=] { tabs->removeTabAtIndex(1); },
                         [=] { tabs->nextTab(); }, [=] { tabs->setCurrentTabIndex(1); },
                         [=] { tabs->setTitleForTabAtIndex(0, "Calls"); }, [=] { all->append("Gerd"); }},
                        std::move(pages)};
    });
}

TEST_P(ObserverDeletionTest, PopupsMayGo)
{
    attack([] { return ofPopup(std::make_unique<PopupCall>()); });
    attack([] { return ofPopup(std::make_unique<PopupConfirm>(true)); });
    attack([] { return ofPopup(std::make_unique<PopupDialer>(true, 0)); });
    attack([] { return ofPopup(std::make_unique<PopupNotification>()); });
    attack([] { return ofPopup(std::make_unique<PopupProgress>()); });
    attack([] { return ofPopup(std::make_unique<PopupTextField>(true)); });
    attack([] { return ofPopup(std::make_unique<ContextMenu>(true)); });
}

TEST_P(ObserverDeletionTest, IdleDisplayMayGo)
{
    attack([] {
        auto made = std::make_unique<IdleDisplay>("logo");
        IdleDisplay* const idle = made.get();
        const auto command = std::make_shared<MenuCommand>("Menu", 1UL);
        idle->showDiallerOnInitialKeyEvent(true);
        return Attacked{std::move(made),
                        {[=] { idle->setMessages(2); }, [=] { idle->setMissedCalls(2); },
                         [=] { idle->setForwardingAddress("12"); }, [=] { idle->addCommand(command.get()); },
                         [=] { idle->addSystemMessage("news"); }, [=] { idle->setBrandingText("brand"); },
                         [=] { idle->setCurrentPhoneNumber("34"); }, [=] { idle->hide(); }},
                        {command}};
    });
}

TEST_P(ObserverDeletionTest, DesktopMayGo)
{
    attack([] {
        auto made = std::make_unique<Desktop>();
        Desktop* const desktop = made.get();
        return Attacked{std::move(made),
                        {[=] { desktop->setLogoText("logo"); }, [=] { desktop->setExtLabelText("34"); },
                         [=] { desktop->displayKeyLockIcon(true); }, [=] { desktop->setStatusBarMode("a", "b"); },
                         [=] { desktop->setTime(1, 2, 3); }, [=] { desktop->setFPKLabel(0, "key", true, false); },
                         [=] { desktop->setShifted(true); }, [=] { desktop->screensaverStart(); }},
                        {}};
    });
}

} // namespace

INSTANTIATE_ON_PANELS(ObserverDeletionTest);
