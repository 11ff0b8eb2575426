#include "DisplayAPI/IdleDisplay.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "DisplayPrivate.h"
#include "doubles/FakeStartUp.h"
#include "doubles/Mocks.h"
#include "doubles/Screen.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"
#include "utilities/TranslationInfo.h"

#include <cstdlib>

using namespace DisplayAPI;
using doubles::callText;
using test::From;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int CREATE = 0, CLEAN_UP = 1, ADDRESS = 4, SERVER_ADDRESS = 7;

class IdleDisplayTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~IdleDisplayTest() override
    {
        run([&] { idle.reset(); });
    }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }

    /// Makes an idle display on the given hardware and tells what its private side has been called with.
    std::vector<std::string> made(int variant = 1)
    {
        test::setHardwareVariant(variant);
        run([&] { idle = std::make_unique<IdleDisplay>("logo.png"); });
        expectAllOnGuiThread();
        return reached();
    }

    /// What the private side has been called with, without the class's name. Others' notes are left out.
    std::vector<std::string> arrived()
    {
        std::vector<std::string> calls;
        const std::string side = "IdleDisplayPrivate::";
        expectAllOnGuiThread();
        for (const std::string& text : reached())
            if (text.starts_with(side))
                calls.push_back(text.substr(side.size()));
        return calls;
    }

    template <typename Answer>
    Answer asked(const std::function<Answer()>& question)
    {
        Answer answer{};
        run([&] { answer = question(); });
        return answer;
    }

    PopupDialer* dialer()
    {
        return asked<PopupDialer*>([this] { return idle->getDialer(); });
    }

    void fire(int index)
    {
        gui.call([&] { idle->fireMenuCommand(index); });
    }

    std::unique_ptr<IdleDisplay> idle;
    MenuCommand call{"Call", 1}, send{"Send", 2}, edit{"Edit", 3};
    testing::StrictMock<doubles::MockCommandListener> first, second;
};

TEST_P(IdleDisplayTest, SideIsThatOfThePanel)
{
    for (const int variant : {1, 0, 2}) {
        const auto calls = made(variant);
        const std::string side = variant == 1 ? "IdleDisplayPrivate" : "IdleDisplayPrivateWP1";
        EXPECT_THAT(calls, ElementsAre(callText(side, idle.get(), std::string("logo.png"))));
        EXPECT_EQ(idle->getName(), "IdleDisplay");
        run([&] { idle.reset(); });
        EXPECT_THAT(reached(), ElementsAre("~" + side + "()"));
    }
}

TEST_P(IdleDisplayTest, SideIsThatOfTheFullPanelWithoutAnApplication)
{
    test::setHardwareVariant(0);
    auto* const application = KestrelApplication::getCurrentApplication();
    KestrelApplication::setCurrentApplication(nullptr);
    run([&] { idle = std::make_unique<IdleDisplay>(""); });
    KestrelApplication::setCurrentApplication(application);
    EXPECT_THAT(reached(), ElementsAre(callText("IdleDisplayPrivate", idle.get(), std::string())));
}

TEST_P(IdleDisplayTest, AdoptsAPrivateSideOrHasNone)
{
    run([&] { idle = std::make_unique<IdleDisplay>(static_cast<IdleDisplayPrivateIfc*>(nullptr)); });
    EXPECT_EQ(idle->getName(), "IdleDisplay");
    EXPECT_EQ(idle->getPrivateImpl(), nullptr);
    run([&] {
        idle->addCommand(&call);
        idle->setDefaultMenuCommand(&send);
        idle->clearCommands();
        idle->displayMobileUserIcon(true, 1);
    });
    gui.call([&] { idle->localeChanged("de_DE"); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(IdleDisplayTest, DisplayGetsThePrivateSideOrNone)
{
    made();
    EXPECT_NE(idle->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *idle, CLEAN_UP);
    EXPECT_EQ(idle->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *idle, CLEAN_UP);
}

TEST_P(IdleDisplayTest, NewCommandsTakeThePlaceOfTheOthers)
{
    made();
    run([&] {
        idle->addCommand(&call);
        idle->setCommands({&send, nullptr, &edit});
    });
    EXPECT_THAT(arrived(),
                ElementsAre("addCommand(\"Call\")", "clearCommands()", "addCommand(\"Send\")", "addCommand(\"Edit\")"));
    EXPECT_CALL(first, postCommandAction(&edit, idle.get()));
    idle->addCommandListener(&first);
    fire(1);
}

TEST_P(IdleDisplayTest, CommandThatIsGoneIsNotAdded)
{
    made();
    auto gone = std::make_unique<MenuCommand>("Gone", 9);
    MenuCommand* const address = gone.get();
    gone.reset();
    run([&] { idle->addCommand(address); });
    EXPECT_THAT(arrived(), IsEmpty());
}

TEST_P(IdleDisplayTest, DefaultCommandIsKnownByItsPlace)
{
    made();
    run([&] { idle->setCommands({&call, &send, &edit}); });
    reached();
    run([&] { idle->setDefaultMenuCommand(&send); });
    EXPECT_THAT(arrived(), ElementsAre("setDefaultMenuCommand(1)"));
}

TEST_P(IdleDisplayTest, DefaultCommandIsAddedWhereItIsMissing)
{
    made();
    run([&] { idle->addCommand(&call); });
    reached();
    run([&] { idle->setDefaultMenuCommand(&send); });
    EXPECT_THAT(arrived(), ElementsAre("addCommand(\"Send\")", "setDefaultMenuCommand(1)"));
    run([&] { idle->setDefaultMenuCommand(nullptr); });
    EXPECT_THAT(arrived(), ElementsAre("setDefaultMenuCommand(1)"));
}

TEST_P(IdleDisplayTest, NewLocaleBringsTheTextsOfCommandsThatExist)
{
    made();
    auto gone = std::make_unique<MenuCommand>("Gone", 9);
    run([&] { idle->setCommands({&call, gone.get(), &edit}); });
    reached();
    gone.reset();
    gui.call([&] { idle->localeChanged("de_DE"); });
    EXPECT_THAT(arrived(),
                ElementsAre("localeChanged(\"de_DE\")", "setCommandText(0, \"Call\")", "setCommandText(2, \"Edit\")"));
}

TEST_P(IdleDisplayTest, ListenersHearOfCommandsInOrder)
{
    made();
    run([&] {
        idle->addCommand(&call);
        idle->addCommandListener(&first);
        idle->addCommandListener(nullptr);
        idle->addCommandListener(&second);
        idle->addCommandListener(&first);
    });
    const testing::InSequence inOrder;
    EXPECT_CALL(first, postCommandAction(&call, idle.get()));
    EXPECT_CALL(second, postCommandAction(&call, idle.get()));
    EXPECT_CALL(first, postCommandAction(&call, idle.get()));
    fire(0);
    run([&] { idle->removeCommandListener(&first); });
    EXPECT_CALL(second, postCommandAction(IdleDisplay::BACK_COMMAND(), idle.get()));
    EXPECT_CALL(first, postCommandAction(IdleDisplay::BACK_COMMAND(), idle.get()));
    gui.call([&] { idle->fireBackCommand(); });
    run([&] {
        idle->removeCommandListener(&first);
        idle->removeCommandListener(&first);
        idle->removeCommandListener(&second);
    });
    gui.call([&] { idle->fireBackCommand(); });
}

TEST_P(IdleDisplayTest, NothingIsHeardOfCommandsThatAreNotThere)
{
    made();
    auto gone = std::make_unique<MenuCommand>("Gone", 9);
    run([&] {
        idle->addCommand(gone.get());
        idle->addCommandListener(&first);
    });
    gone.reset();
    for (const int index : {-1, 0, 1})
        fire(index);
}

TEST_P(IdleDisplayTest, BackCommandIsOneWithoutALabel)
{
    EXPECT_EQ(IdleDisplay::BACK_COMMAND(), IdleDisplay::BACK_COMMAND());
    EXPECT_EQ(IdleDisplay::BACK_COMMAND()->getText(), "");
    EXPECT_EQ(IdleDisplay::BACK_COMMAND()->getType(), Command::BACK);
}

TEST_P(IdleDisplayTest, MakesADialerWhenItIsAskedForOne)
{
    made();
    PopupDialer* const own = dialer();
    ASSERT_NE(own, nullptr);
    EXPECT_THAT(arrived(), ElementsAre(callText("setDialler", static_cast<const void*>(own))));
    EXPECT_EQ(dialer(), own);
    EXPECT_THAT(arrived(), IsEmpty());
    run([&] { idle.reset(); });
    EXPECT_THAT(reached(), ElementsAre("~PopupDialerPrivate()", "~IdleDisplayPrivate()"));
}

TEST_P(IdleDisplayTest, DialerOfTheApplicationStaysItsOwn)
{
    made();
    PopupDialer others(true, 0);
    dialer();
    run([&] { idle->addDialer(&others); });
    EXPECT_EQ(dialer(), &others);
    EXPECT_EQ(recorder.count("~PopupDialerPrivate"), 1) << "the one that it had made";
    run([&] { idle.reset(); });
    EXPECT_EQ(recorder.count("~PopupDialerPrivate"), 1);
}

TEST_P(IdleDisplayTest, OwnDialerThatComesBackStaysItsOwn)
{
    made();
    PopupDialer* const own = dialer();
    run([&] { idle->addDialer(own); });
    EXPECT_EQ(dialer(), own);
    EXPECT_EQ(recorder.count("~PopupDialerPrivate"), 0);
    run([&] { idle->addDialer(nullptr); });
    EXPECT_EQ(recorder.count("~PopupDialerPrivate"), 1);
    EXPECT_THAT(arrived(), Contains("setDialler(" + doubles::printed(static_cast<const void*>(nullptr)) + ")"));
}

TEST_P(IdleDisplayTest, KindOfMobileUserDoesNotTravel)
{
    made();
    run([&] { idle->displayMobileUserIcon(true, 5); });
    EXPECT_THAT(arrived(), ElementsAre(GetParam() == From::GUI_THREAD ? "displayMobileUserIcon(true, 5)"
                                                                      : "displayMobileUserIcon(true, 0)"));
}

TEST_P(IdleDisplayTest, WhatDoesNothingReachesNobody)
{
    made();
    TranslationInfo translation("Forwarded", nullptr);
    run([&] {
        idle->setServerBasedForwardingAddress(&translation, nullptr);
        idle->setUsedWithTab(true, idle.get());
        idle->setAsListenerForUnhandledKeypadEvents();
    });
    EXPECT_THAT(reached(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(CalledFrom, IdleDisplayTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const auto& tested) { return test::nameOf(tested.param); });

/// With the GUI thread in the test's hands.
class QueuedIdleDisplayTest : public test::SteppedTest {
protected:
    QueuedIdleDisplayTest() { recorder.clear(); }

    doubles::Recorder& recorder = doubles::Recorder::instance();
    MenuCommand call{"Call", 1};
    TranslationInfo translation{"Forwarded", nullptr};
};

TEST_F(QueuedIdleDisplayTest, MakingPostsAndDeletingWaits)
{
    test::Worker worker([] { IdleDisplay idle(""); });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, CLEAN_UP));
    gui.runAll();
}

TEST_F(QueuedIdleDisplayTest, IsNamedWithItsPrivateSide)
{
    auto idle = std::unique_ptr<IdleDisplay>();
    test::onOtherThread([&] { idle = std::make_unique<IdleDisplay>(""); });
    EXPECT_EQ(idle->getName(), "Displayable with no name");
    EXPECT_EQ(idle->getPrivateImpl(), nullptr);
    gui.runAll();
    EXPECT_EQ(idle->getName(), "IdleDisplay");
}

TEST_F(QueuedIdleDisplayTest, SettersSupersedeThemselves)
{
    IdleDisplay idle("");
    const auto setAll = [&] {
        idle.setMessages(1);
        idle.setMissedCalls(1);
        idle.setForwardingAddress("1");
        idle.setForwardingAddress(&translation);
        idle.setForwardingAddress(&translation, nullptr);
        idle.setServerBasedForwardingAddress("1");
        idle.setServerBasedForwardingAddress(&translation);
        idle.setDefaultMenuCommand(&call);
        idle.changeLogo("1");
        idle.setBrandingText("1");
        idle.setSystemWindowSize(1);
        idle.setSystemWindowText(1, "1");
        idle.showDiallerOnInitialKeyEvent(true);
        idle.setForwardingIconVisible(true);
        idle.setCurrentPhoneNumber("1");
        idle.setDisplayIdUnicode("1");
        idle.setUseDisplayId(true);
        idle.displayMobileUserIcon(true, 0);
    };
    test::onOtherThread(setAll);
    test::onOtherThread(setAll);
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(2, 3, 4, 5, 6, 7, 8, 11, 16, 17, 18, 19, 20, 23, 24, 25, 26, 27));
    gui.runAll();
}

TEST_F(QueuedIdleDisplayTest, AdditionsAndClearingsKeepTheirOrder)
{
    IdleDisplay idle("");
    test::onOtherThread([&] {
        for (int i = 0; i < 2; ++i) {
            idle.clearCommands();
            idle.hide();
            idle.addSystemMessage("1");
            idle.addSystemMessage(&translation);
            idle.clearSystemMessages();
            idle.addDialer(nullptr);
        }
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(10, 12, 13, 14, 15, 21, 10, 12, 13, 14, 15, 21));
    gui.runAll();
}

TEST_F(QueuedIdleDisplayTest, AddressAndItsClearingSupersedeEachOther)
{
    IdleDisplay idle("");
    test::onOtherThread([&] {
        idle.setForwardingAddress("030");
        idle.setServerBasedForwardingAddress("040");
        idle.clearForwardingAddress();
        idle.clearServerBasedForwardingAddress();
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(ADDRESS, SERVER_ADDRESS));
    gui.runAll();
    EXPECT_EQ(recorder.last("IdleDisplayPrivate::setForwarding").text,
              "IdleDisplayPrivate::setForwardingAddress(\"\")");
    EXPECT_EQ(recorder.count("IdleDisplayPrivate::setForwardingAddress"), 1);
    test::onOtherThread([&] {
        idle.clearForwardingAddress();
        idle.setForwardingAddress("030");
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(ADDRESS));
    gui.runAll();
    EXPECT_EQ(recorder.last("IdleDisplayPrivate::setForwarding").text,
              "IdleDisplayPrivate::setForwardingAddress(\"030\")");
}

TEST_F(QueuedIdleDisplayTest, ScreenIsLeftWhenItIsDeleted)
{
    Display display(new DisplayPrivate(false, "any", "", "", "", "", nullptr, nullptr, new doubles::FakeStartUp, true));
    auto idle = std::make_unique<IdleDisplay>("");
    display.show();
    display.setCurrent(idle.get());
    EXPECT_EQ(display.getCurrent(), idle.get());
    idle.reset();
    EXPECT_EQ(display.getCurrent(), nullptr);
}

} // namespace
