// What a reminder promises of each of its operations.

#include "Reminder.h"

#include "doubles/Mocks.h"
#include "doubles/Recorder.h"
#include "support/FacadeContract.h"
#include "utilities/TranslationInfo.h"

using DisplayAPI::Reminder;
using doubles::callText;
using test::Filling;

namespace {

constexpr int DESTROY = 1;

struct Reminders : test::WidgetSubject<Reminder> {
    explicit Reminders(bool hasPrivateSide)
    {
        facade = std::make_unique<Reminder>();
        if (!hasPrivateSide)
            endSide(DESTROY);
    }

    static std::string arrival(const std::string& call) { return test::sideName("ReminderPrivate") + "::" + call; }

    TranslationInfo translation{"Call.Back", nullptr};
    testing::StrictMock<doubles::MockCommandListener> listener;
};

const bool REMINDER_CHECKED =
    test::Contract<Reminders>("ReminderContractTest")
        .posts("setText", 2, [](Reminders& r) { r->setText("Call back"); })
        .record({.text1 = "Call back"})
        .arrives("setText(\"Call back\")")
        .posts("setTranslation", 3, [](Reminders& r) { r->setText(&r.translation); })
        .record([](Reminders& r) { return Filling{.ptr1 = &r.translation}; })
        .arrives([](Reminders& r) { return callText("setText", &r.translation); })
        .posts("setUrgency", 4, [](Reminders& r) { r->setUrgency(Reminder::URGENT); })
        .record({.int1 = 1})
        .arrives("setUrgency(1)")
        .waits("getMinutes", 5, 5, -1, [](Reminders& r) { return r->getMinutes(); })
        .arrives("getMinutes()")
        .posts("dismiss", 6, [](Reminders& r) { r->dismiss(); })
        .arrives("dismiss()")
        .posts("addCommandListener", 7, [](Reminders& r) { r->addCommandListener(&r.listener); })
        .record([](Reminders& r) { return Filling{.ptr1 = &r.listener}; })
        .arrives([](Reminders& r) { return callText("addCommandListener", &r.listener); })
        .waits("removeCommandListener", 8, [](Reminders& r) { r->removeCommandListener(&r.listener); })
        .record([](Reminders& r) { return Filling{.ptr1 = &r.listener}; })
        .arrives([](Reminders& r) { return callText("removeCommandListener", &r.listener); })
        .completes({-1, 9, 99})
        .check();

} // namespace
