#include "ReminderPrivate.h"

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/ScreenText.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/widgets/popup/PopupBox.h"
#include "utilities/ICC.h"
#include "widgets/ApplicationWatch.h"

namespace DisplayAPI {

/// What the reminder is made of. It hears the box, and the language.
struct ReminderSide::Impl : PegThing {
    Impl(ReminderSide& self, Reminder* owner, Panel panel);
    ~Impl() override;

    int Message(const PegMessage& message) override;
    void setText(TranslatedText newText);
    void choose(int command);
    std::string shown() const;
    void changed();

    ReminderSide& self;
    Reminder* owner;
    std::vector<int> choices; ///< in minutes, one for each command of the box
    TranslatedText text;
    Reminder::Urgency urgency = Reminder::CALM;
    int minutes = -1;
    WatchedWidget<host::PopupBox> box{std::in_place_type<host::PopupBox>};
    OwnershipDelegate<host::PopupBox> ownership{box.slot(), true};
    ApplicationWatch language{*this};
};

ReminderSide::Impl::Impl(ReminderSide& side, Reminder* facade, Panel panel)
    : self(side), owner(facade), choices(panel == Panel::FULL ? std::vector{5, 10, 30, 60} : std::vector{5, 10, 30})
{
    std::vector<PegString> commands;
    for (const int choice : choices)
        commands.push_back(ICC::fromUTF8toUNICODE(std::to_string(choice)));
    box->setCommands(std::move(commands));
    box->setMessageTarget(this);
}

/// A box that is still on screen then is its manager's, and outlives this.
ReminderSide::Impl::~Impl()
{
    if (box != nullptr)
        box->setMessageTarget(nullptr);
}

int ReminderSide::Impl::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CLICKED: choose(message.iData); break;
    case PM_APPLICATION_CHANGED: changed(); break;
    default: return PegThing::Message(message);
    }
    return 0;
}

void ReminderSide::Impl::setText(TranslatedText newText)
{
    text = std::move(newText);
    changed();
}

/// The command is queued for the listeners, who hear it on a thread of the pool.
void ReminderSide::Impl::choose(int command)
{
    minutes = choices.at(static_cast<std::size_t>(command));
    self.postCommand(Reminder::CHOSEN_COMMAND(), owner);
    self.dismiss();
}

std::string ReminderSide::Impl::shown() const
{
    return urgency == Reminder::URGENT ? "! " + text.text() : text.text();
}

void ReminderSide::Impl::changed()
{
    if (box == nullptr)
        return;
    box->setHeader(ICC::fromUTF8toUNICODE(shown()));
    if (box->StatusIs(PSF_VISIBLE))
        self.generateDisplayChangedEvent();
}

ReminderSide::ReminderSide(Reminder* owner, Panel panel) : mImpl(new Impl(*this, owner, panel)) {}

ReminderSide::~ReminderSide() = default;

ReminderPrivate::ReminderPrivate(Reminder* owner) : ReminderSide(owner, Panel::FULL) {}

ReminderPrivateWP1::ReminderPrivateWP1(Reminder* owner) : ReminderSide(owner, Panel::SMALL) {}

PegThing* ReminderSide::getWidget()
{
    return mImpl->box.get();
}

void ReminderSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void ReminderSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void ReminderSide::show()
{
    generateDisplayChangedEvent();
}

void ReminderSide::lostFocus() {}

bool ReminderSide::hideOldWidgetOnFocusGained()
{
    return false; // a popup leaves what is below it on screen
}

std::string ReminderSide::serialise()
{
    return screen::object("Reminder", screen::caption(mImpl->shown()));
}

void ReminderSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void ReminderSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void ReminderSide::setText(const std::string& text)
{
    mImpl->setText(TranslatedText(text));
}

void ReminderSide::setText(TranslationInfo* text)
{
    mImpl->setText(TranslatedText(text));
}

void ReminderSide::setUrgency(Reminder::Urgency urgency)
{
    mImpl->urgency = urgency;
    mImpl->changed();
}

int ReminderSide::getMinutes()
{
    return mImpl->minutes;
}

void ReminderSide::dismiss()
{
    widgetDismissed(this);
}

} // namespace DisplayAPI
