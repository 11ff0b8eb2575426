#include "DisplayAPI/MenuCommand.h"
#include "pictures/StatusScreens.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/TranslationInfo.h"
#include "variants/popup/PopupCallPrivate.h"
#include "variants/popup/PopupConfirmPrivate.h"
#include "variants/popup/PopupNotificationPrivate.h"
#include "variants/popup/PopupProgressPrivate.h"

namespace {

using DisplayAPI::MenuCommand;
using DisplayAPI::PopupCall;
using DisplayAPI::PopupConfirm;
using DisplayAPI::PopupNotification;
using DisplayAPI::PopupProgress;

/// What asks, tells and shows progress, over a list of rooms.
class MessagePictures : public StatusScreens {
protected:
    ~MessagePictures() override { takeOff(); }

    DisplayAPI::PopupCallSide& call()
    {
        if (isTwoLines())
            return show<DisplayAPI::PopupCallPrivateWP1>(nullptr, nullptr);
        return show<DisplayAPI::PopupCallPrivate>(nullptr, nullptr);
    }

    DisplayAPI::PopupConfirmSide& ask()
    {
        if (isTwoLines())
            return show<DisplayAPI::PopupConfirmPrivateWP1>(nullptr, true);
        return show<DisplayAPI::PopupConfirmPrivate>(nullptr);
    }

    DisplayAPI::PopupNotificationSide& notify()
    {
        if (isTwoLines())
            return show<DisplayAPI::PopupNotificationPrivateWP1>(nullptr);
        return show<DisplayAPI::PopupNotificationPrivate>(nullptr);
    }

    DisplayAPI::PopupProgressSide& progress(PopupProgress::ProgressType type)
    {
        if (isTwoLines())
            return show<DisplayAPI::PopupProgressPrivateWP1>(nullptr, type);
        return show<DisplayAPI::PopupProgressPrivate>(nullptr, type);
    }

    template <typename Side>
    void addAnswers(Side& popup, const std::vector<std::string>& labels)
    {
        for (const std::string& label : labels) {
            mAnswers.push_back(std::make_unique<MenuCommand>(label, mAnswers.size()));
            popup.addCommand(mAnswers.back().get());
        }
    }

    std::vector<std::unique_ptr<MenuCommand>> mAnswers;

private:
    /// As a display does it.
    template <typename Side, typename... Args>
    Side& show(Args... args)
    {
        takeOff();
        auto popup = std::make_unique<Side>(args...);
        Side& shown = *popup;
        mPopup = std::move(popup);
        if (gpPresent->First() == nullptr)
            showList("Rooms", rooms(9));
        shown.releaseOwnership();
        gpPresent->Add(shown.getWidget());
        return shown;
    }

    void takeOff()
    {
        if (mPopup == nullptr)
            return;
        mPopup->gainOwnership();
        gpPresent->Remove(mPopup->getWidget());
    }

    std::unique_ptr<DisplayAPI::PopupSide> mPopup;
};

} // namespace

TEST_P(MessagePictures, CallThatComesAndIsConnected)
{
    auto& popup = call();
    popup.setPopupCallDetails(std::make_unique<CallPartyIdentifier>("Zoë Ångström", "4711"),
                              std::make_unique<CallPartyIdentifier>("", "030 1234567"), DisplayAPI::FORWARDED_NO_ANSWER,
                              "Room 4", nullptr);
    popup.setState(PopupCall::INCOMING, PopupCall::URGENT);
    addAnswers(popup, {"Answer", "Reject"});
    expectScreen("call-incoming");
    popup.clearCommands();
    addAnswers(popup, {"Hang up"});
    popup.setState(PopupCall::CONNECTED, PopupCall::NORMAL);
    popup.setAuxText("Connected");
    expectScreen("call-connected");
}

TEST_P(MessagePictures, CallReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    auto& popup = call();
    popup.setLine1PrefixText("إلى");
    popup.setText("سارة");
    popup.setState(PopupCall::HELD, PopupCall::EMERGENCY);
    addAnswers(popup, {"نعم", "لا"});
    expectScreen("call-arabic");
}

TEST_P(MessagePictures, QuestionWithAnswers)
{
    auto& popup = ask();
    popup.setText("Delete entry?");
    popup.setLine2PrefixText("Entry");
    popup.setLine2Text("Ελένη Ιωάννου");
    popup.setState(PopupConfirm::QUESTION);
    addAnswers(popup, {"Yes", "No"});
    popup.setDefaultCommand(mAnswers.back().get());
    expectScreen("confirm");
}

TEST_P(MessagePictures, WarningReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    auto& popup = ask();
    popup.setText("حذف القيد؟");
    popup.setLine2Text("سارة");
    popup.setState(PopupConfirm::WARNING);
    addAnswers(popup, {"نعم", "لا"});
    expectScreen("confirm-arabic");
}

TEST_P(MessagePictures, NewsWithIcons)
{
    auto& popup = notify();
    popup.setText("Not sent");
    popup.setType(PopupNotification::FAILURE);
    popup.setLine2PrefixText("To");
    popup.setLine2Text("Zoë Ångström");
    popup.setLine2Icon(PopupNotification::ICON_LETTER);
    popup.setLine3Text("Try again when the line is free");
    popup.setDismissible(true);
    expectScreen("notification");
}

TEST_P(MessagePictures, ForwardedCall)
{
    notify().setForwardNotification(std::make_unique<CallPartyIdentifier>("Ada", "4711"),
                                    std::make_unique<CallPartyIdentifier>("", "030 1234567"),
                                    DisplayAPI::FORWARDED_NO_ANSWER);
    expectScreen("notification-forwarded");
}

TEST_P(MessagePictures, ProgressOfEachType)
{
    const std::vector<std::pair<PopupProgress::ProgressType, const char*>> types{
        {PopupProgress::BAR, "bar"}, {PopupProgress::PERCENT, "percent"}, {PopupProgress::STEPS, "steps"}};
    for (const auto& [type, name] : types) {
        auto& popup = progress(type);
        popup.setText("Update");
        popup.updateProgressBar(45);
        expectScreen(std::string("progress-") + name);
    }
}

TEST_P(MessagePictures, ProgressWithStageAndActivity)
{
    auto& popup = progress(PopupProgress::BAR_AND_PERCENT);
    popup.setText("Update");
    popup.setType(PopupProgress::INFORMATION);
    popup.setCurrentStageText("Stage 2 of 3");
    popup.setCurrentActivityText("Loading languages");
    popup.updateProgressBar(45);
    expectScreen("progress");
    popup.updateProgressBar(100);
    expectScreen("progress-done");
}

TEST_P(MessagePictures, ProgressReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    auto& popup = progress(PopupProgress::BAR_AND_PERCENT);
    popup.setText("اللغة");
    popup.updateProgressBar(45);
    expectScreen("progress-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, MessagePictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
