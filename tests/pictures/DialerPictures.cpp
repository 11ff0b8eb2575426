#include "DisplayAPI/MenuCommand.h"
#include "pictures/StatusScreens.h"
#include "variants/popup/PopupDialerPrivate.h"

namespace {

using DisplayAPI::MenuCommand;
using DisplayAPI::PopupDialer;
using DisplayAPI::PopupDialerPrivate;
using DisplayAPI::PopupDialerPrivateWP1;
using DisplayAPI::PopupDialerSide;

/// Dialers over a list of rooms.
class DialerPictures : public StatusScreens {
protected:
    ~DialerPictures() override
    {
        if (mDialer == nullptr)
            return;
        mDialer->gainOwnership();
        gpPresent->Remove(mDialer->getWidget());
    }

    /// As a display does it.
    PopupDialerSide& showDialer()
    {
        if (isTwoLines())
            mDialer = std::make_unique<PopupDialerPrivateWP1>(nullptr, true);
        else
            mDialer = std::make_unique<PopupDialerPrivate>(nullptr);
        showList("Rooms", rooms(9));
        mDialer->releaseOwnership();
        gpPresent->Add(mDialer->getWidget());
        host::Lcd::current()->paint();
        return *mDialer;
    }

    void addCommands(const std::vector<std::string>& labels)
    {
        for (const std::string& label : labels) {
            mCommands.push_back(std::make_unique<MenuCommand>(label, mCommands.size()));
            mDialer->addCommand(mCommands.back().get());
        }
    }

    void type(const std::string& keys)
    {
        for (const char key : keys) {
            mDialer->getWidget()->Message({.wType = PM_KEY, .iData = key});
            mDialer->getWidget()->Message({.wType = PM_KEYRELEASE, .iData = key});
            host::Lcd::current()->paint();
        }
    }

    std::vector<std::unique_ptr<MenuCommand>> mCommands;
    std::unique_ptr<PopupDialerSide> mDialer;
};

} // namespace

TEST_P(DialerPictures, EmptyThenTyped)
{
    showDialer();
    mDialer->setText("Enter a number");
    addCommands({"Dial", "Contacts"});
    expectScreen("dialer-empty");
    type("0301");
    expectScreen("dialer");
}

TEST_P(DialerPictures, PrefixSecondLineAndHeader)
{
    showDialer();
    mDialer->setStimulusText("Line 2");
    mDialer->showStimulusTextInHeader(true);
    mDialer->setLine1PrefixText("To:");
    mDialer->setLine2Text("Ελένη Ιωάννου");
    type("4711");
    addCommands({"Dial"});
    expectScreen("dialer-full");
}

TEST_P(DialerPictures, SecondLineWithoutCommands)
{
    showDialer();
    mDialer->setLine1PrefixText("A prefix that wants all of the line and gets a half");
    mDialer->setLine2Text("Ada");
    type("4711");
    expectScreen("dialer-bare");
}

TEST_P(DialerPictures, HeaderWithoutSecondLine)
{
    showDialer();
    mDialer->setStimulusText("Redial");
    mDialer->showStimulusTextInHeader(true);
    type("110");
    expectScreen("dialer-header");
}

TEST_P(DialerPictures, LongTextShowsItsEnd)
{
    showDialer();
    addCommands({"Dial", "Save the number", "Delete", "Look it up"});
    type("012345678901234567890123456789012345");
    mDialer->getWidget()->Message({.wType = PM_KEY, .iData = PK_DOWN});
    expectScreen("dialer-long");
}

TEST_P(DialerPictures, HiddenDigitsAndLetters)
{
    showDialer();
    mDialer->setLine1PrefixText("PIN");
    mDialer->setMode(PopupDialer::HIDDEN);
    addCommands({"OK"});
    type("4711");
    expectScreen("dialer-hidden");
    mDialer->setLineEditText("");
    mDialer->setLine1PrefixText("Name");
    mDialer->setEditMode();
    type("232");
    expectScreen("dialer-letters");
}

TEST_P(DialerPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    showDialer();
    mDialer->setLine1PrefixText("إلى");
    mDialer->setLine2Text("اتصال");
    addCommands({"اتصال", "حذف"});
    type("0301");
    expectScreen("dialer-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, DialerPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
