#include "DisplayAPI/Desktop.h"

#include "DisplayAPI/MenuCommand.h"
#include "support/LogLines.h"
#include "support/SteppedLoop.h"
#include "support/Worker.h"
#include "unit/src/FacadeTest.h"

using namespace DisplayAPI;
using doubles::callText;
using host::LogLine;
using test::From;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int CREATE = 0, DESTROY = 1, SET_LOGO_TEXT = 2, SHOW = 21, UNKNOWN = 33;
constexpr const char* MODULE = "PegWidgets";

LogLine line(int number, const std::string& text)
{
    return {MODULE, "./src/Desktop", 5, number, text};
}

class DesktopTest : public test::FacadeTest, public testing::WithParamInterface<From> {
protected:
    ~DesktopTest() override { KestrelApplication::setCurrentApplication(mApplication); }

    void run(const std::function<void()>& work) { FacadeTest::run(GetParam(), work); }
    void make()
    {
        run([&] { desktop = std::make_unique<Desktop>(); });
    }

    /// What `work` has the desktop write.
    std::vector<LogLine> logOf(const std::function<void()>& work)
    {
        const host::LogCapture log;
        run(work);
        return own(log);
    }

    std::vector<LogLine> logOf(int code)
    {
        const host::LogCapture log;
        carryOut(GetParam(), *desktop, code);
        return own(log);
    }

    static std::vector<LogLine> own(const host::LogCapture& log)
    {
        auto lines = test::linesOf(log, MODULE);
        std::erase_if(lines, [](const LogLine& each) { return each.file != "./src/Desktop"; });
        return lines;
    }

    bool isPosted() const { return GetParam() == From::WORKER; }

    std::unique_ptr<Desktop> desktop;

private:
    KestrelApplication* const mApplication = KestrelApplication::getCurrentApplication();
};

TEST_P(DesktopTest, VariantOneAloneHasThePlainSide)
{
    for (const auto& [variant, side] :
         {std::pair{1, "DesktopPrivate"}, {0, "DesktopPrivateWP1"}, {2, "DesktopPrivateWP1"}}) {
        desktop.reset();
        reached();
        test::setHardwareVariant(variant);
        make();
        expectAllOnGuiThread();
        EXPECT_THAT(reached(), ElementsAre(callText(side, desktop.get())));
        EXPECT_EQ(desktop->getName(), "Desktop");
    }
}

TEST_P(DesktopTest, WithoutAnApplicationTheSideIsThePlainOne)
{
    test::setHardwareVariant(0);
    gui.call([] { KestrelApplication::setCurrentApplication(nullptr); });
    make();
    EXPECT_THAT(reached(), ElementsAre(callText("DesktopPrivate", desktop.get())));
    gui.call([&] { desktop.reset(); });
}

TEST_P(DesktopTest, DestructorDeletesThePrivateSideOnTheGuiThread)
{
    make();
    reached();
    run([&] { desktop.reset(); });
    expectAllOnGuiThread();
    EXPECT_THAT(reached(), ElementsAre("~DesktopPrivate()"));
}

TEST_P(DesktopTest, DisplayGetsThePrivateSideOrNone)
{
    make();
    EXPECT_NE(desktop->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *desktop, DESTROY);
    EXPECT_EQ(desktop->getPrivateImpl(), nullptr);
    carryOut(GetParam(), *desktop, DESTROY);
    run([&] { EXPECT_EQ(desktop->getNumberOfFPKLabels(), -1); });
}

TEST_P(DesktopTest, KindOfMobileUserDoesNotTravel)
{
    make();
    reached();
    run([&] { desktop->displayMobileUserIcon(true, 5); });
    EXPECT_THAT(reached(), ElementsAre(callText("DesktopPrivate::displayMobileUserIcon", true, isPosted() ? 0 : 5)));
}

TEST_P(DesktopTest, MobileUserWithoutAPrivateSideIsIgnored)
{
    make();
    carryOut(GetParam(), *desktop, DESTROY);
    reached();
    run([&] { desktop->displayMobileUserIcon(true, 5); });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(DesktopTest, WhatTheTelephoneHasNoUseForDoesNothing)
{
    make();
    reached();
    run([&] {
        desktop->displayBluetoothIcon(true);
        desktop->displayBluetoothTransferIcon(true);
        desktop->displayBluetoothHeadsetIcon(true);
        desktop->displayBluetoothHeadsetTransferIcon(true);
        desktop->screensaverSetImagesTimeout(5);
        desktop->screensaverUsePixelSaverImages(2);
        desktop->setPreviewVolume(Desktop::RINGER, 3);
        EXPECT_EQ(desktop->getFpkBar(), nullptr);
    });
    EXPECT_THAT(reached(), IsEmpty());
}

TEST_P(DesktopTest, HiddenCommandIsAlwaysTheSame)
{
    run([] {
        MenuCommand* const command = Desktop::HIDDEN_COMMAND();
        EXPECT_EQ(command, Desktop::HIDDEN_COMMAND());
        EXPECT_EQ(command->getId(), 1001012345u);
        EXPECT_EQ(command->getBasicText(), "WIDGET_IS_HIDDEN_EVENT");
        EXPECT_TRUE(Command::exists(command));
    });
}

TEST_P(DesktopTest, ConstructorAndDestructorLog)
{
    const auto made = logOf([&] { desktop = std::make_unique<Desktop>(); });
    const auto deleted = logOf([&] { desktop.reset(); });
    if (isPosted()) {
        EXPECT_THAT(made, ElementsAre(line(77, "Desktop::Desktop() non gui thread"),
                                      line(577, "Desktop::processGuiRequest 0"),
                                      line(584, "Desktop::processGuiRequest Create")));
        EXPECT_THAT(deleted, ElementsAre(line(577, "Desktop::processGuiRequest 1"),
                                         line(601, "Desktop::processGuiRequest Delete")));
    } else {
        EXPECT_THAT(made, ElementsAre(line(60, "Desktop::Desktop() gui thread")));
        EXPECT_THAT(deleted, IsEmpty());
    }
}

TEST_P(DesktopTest, NumberOfLabelsLogs)
{
    make();
    const auto lines = logOf([&] { desktop->getNumberOfFPKLabels(); });
    if (isPosted())
        EXPECT_THAT(lines, ElementsAre(line(496, "Desktop::processGuiRequest getNumberOfFPKLabels non gui thread"),
                                       line(577, "Desktop::processGuiRequest 20"),
                                       line(682, "Desktop::processGuiRequest GET_NUMFPK")));
    else
        EXPECT_THAT(lines, ElementsAre(line(491, "Desktop::processGuiRequest getNumberOfFPKLabels gui thread")));
}

TEST_P(DesktopTest, RequestsLogTheirCodeAndSomeTheirName)
{
    make();
    const std::vector<std::pair<int, LogLine>> named{{3, line(613, "Desktop::processGuiRequest SET_EXTTEXT")},
                                                     {SHOW, line(687, "Desktop::processGuiRequest show")},
                                                     {UNKNOWN, line(727, "Desktop::processGuiRequest default")}};
    for (const auto& [code, name] : named)
        EXPECT_THAT(logOf(code), ElementsAre(line(577, "Desktop::processGuiRequest " + std::to_string(code)), name));
    EXPECT_THAT(logOf(SET_LOGO_TEXT), ElementsAre(line(577, "Desktop::processGuiRequest 2")));
}

INSTANTIATE_TEST_SUITE_P(CalledFrom, DesktopTest, testing::Values(From::GUI_THREAD, From::WORKER),
                         [](const auto& tested) { return test::nameOf(tested.param); });

/// With the GUI thread in the test's hands.
class QueuedDesktopTest : public test::SteppedTest {
protected:
    QueuedDesktopTest() { doubles::Recorder::instance().clear(); }
};

TEST_F(QueuedDesktopTest, MakingPostsAndDeletingWaits)
{
    test::Worker worker([] { Desktop desktop; });
    EXPECT_TRUE(worker.isBlocked());
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(CREATE, DESTROY));
    gui.runAll();
}

TEST_F(QueuedDesktopTest, DeletingOnTheGuiThreadBeforeItIsMadePostsNothing)
{
    auto desktop = std::unique_ptr<Desktop>();
    test::onOtherThread([&] { desktop = std::make_unique<Desktop>(); });
    desktop.reset();
    EXPECT_THAT(gui.queuedCodes(), IsEmpty());
    EXPECT_EQ(doubles::Recorder::instance().count("DesktopPrivate"), 0);
}

TEST_F(QueuedDesktopTest, LabelIsACopy)
{
    Desktop desktop;
    std::string label;
    test::Worker worker([&] { label = desktop.getFPKLabel(0); });
    EXPECT_TRUE(worker.isBlocked());
    gui.runAll();
    worker.join();
    EXPECT_EQ(label, "Ada");
}

TEST_F(QueuedDesktopTest, NothingSupersedesAnything)
{
    Desktop desktop;
    test::onOtherThread([&] {
        desktop.setLogoText("one");
        desktop.setLogoText("two");
    });
    EXPECT_THAT(gui.queuedCodes(), ElementsAre(SET_LOGO_TEXT, SET_LOGO_TEXT));
    gui.runAll();
}

} // namespace
