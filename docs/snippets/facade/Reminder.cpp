#include "Reminder.h"

#include "DisplayAPI/Command.h"
#include "Operations.h"
#include "ReminderPrivate.h"
#include "Variant.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SET_TEXT = 2,
    SET_TRANSLATION = 3,
    SET_URGENCY = 4,
    GET_MINUTES = 5,
    DISMISS = 6,
    ADD_COMMAND_LISTENER = 7,
    REMOVE_COMMAND_LISTENER = 8
};

} // namespace

struct Reminder::Ops : Operations<Posts<CREATE, &Reminder::create>, Waits<DESTROY, &Reminder::destroy>,
                                  Posts<SET_TEXT, taking<const std::string&>(&ReminderPrivateIfc::setText)>,
                                  Posts<SET_TRANSLATION, taking<TranslationInfo*>(&ReminderPrivateIfc::setText)>,
                                  Posts<SET_URGENCY, &ReminderPrivateIfc::setUrgency>,
                                  Waits<GET_MINUTES, &ReminderPrivateIfc::getMinutes, -1>,
                                  Superseding<Posts<DISMISS, &ReminderPrivateIfc::dismiss>>,
                                  Posts<ADD_COMMAND_LISTENER, &ReminderPrivateIfc::addCommandListener>,
                                  Waits<REMOVE_COMMAND_LISTENER, &ReminderPrivateIfc::removeCommandListener>> {};

Reminder::Reminder()
{
    Ops::call<CREATE>(*this, mImplementation);
}

Reminder::~Reminder()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void Reminder::create()
{
    name = "Reminder";
    if (isFullPanel())
        mImplementation = new ReminderPrivate(this);
    else
        mImplementation = new ReminderPrivateWP1(this);
}

void Reminder::destroy()
{
    deletePrivateSide(mImplementation);
}

void Reminder::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* Reminder::getPrivateImpl()
{
    return mImplementation;
}

Command* Reminder::CHOSEN_COMMAND()
{
    static Command command("", Command::OK);
    return &command;
}

void Reminder::addCommandListener(CommandListener* listener)
{
    Ops::call<ADD_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void Reminder::removeCommandListener(CommandListener* listener)
{
    Ops::call<REMOVE_COMMAND_LISTENER>(*this, mImplementation, listener);
}

void Reminder::setText(const std::string& text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text);
}

void Reminder::setText(TranslationInfo* text)
{
    Ops::call<SET_TRANSLATION>(*this, mImplementation, text);
}

void Reminder::setUrgency(Urgency urgency)
{
    Ops::call<SET_URGENCY>(*this, mImplementation, urgency);
}

int Reminder::getMinutes()
{
    return Ops::call<GET_MINUTES>(*this, mImplementation);
}

void Reminder::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

} // namespace DisplayAPI
