#include "DisplayAPI/PopupPlayer.h"

#include "DisplayAPI/Command.h"
#include "Operations.h"
#include "PopupPlayerPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 0, DESTROY = 1 };

/// The one object of this type.
template <int TYPE>
Command* commandOf()
{
    static Command command("", static_cast<Command::Type>(TYPE));
    return &command;
}

} // namespace

struct PopupPlayer::Ops : Operations<Waits<CREATE, &PopupPlayer::create>, Waits<DESTROY, &PopupPlayer::destroy>> {};

PopupPlayer::PopupPlayer()
{
    Ops::call<CREATE>(*this, mImplementation);
}

PopupPlayer::PopupPlayer(PopupPlayerPrivateIfc* implementation) : mImplementation(implementation)
{
    name = "PopupPlayer";
}

PopupPlayer::~PopupPlayer()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void PopupPlayer::create()
{
    name = "PopupPlayer";
    mImplementation = new PopupPlayerPrivate;
}

void PopupPlayer::destroy()
{
    deletePrivateSide(mImplementation);
}

/// Nothing is completed: the popup is the GUI thread's.
void PopupPlayer::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
}

DisplayablePrivateIfc* PopupPlayer::getPrivateImpl()
{
    return mImplementation;
}

void PopupPlayer::setProgressBarValue(int) {}

void PopupPlayer::setProgressBarStepValue(unsigned int) {}

int PopupPlayer::getProgressBarValue()
{
    return 0;
}

void PopupPlayer::addCommandListener(CommandListener*) {}

void PopupPlayer::removeCommandListener(CommandListener*) {}

Command* PopupPlayer::CALL()
{
    return commandOf<11>();
}

Command* PopupPlayer::SKIP_FORWARD()
{
    return commandOf<14>();
}

Command* PopupPlayer::FORWARD()
{
    return commandOf<9>();
}

Command* PopupPlayer::PLAY()
{
    return commandOf<6>();
}

Command* PopupPlayer::STOP()
{
    return commandOf<8>();
}

Command* PopupPlayer::PAUSE()
{
    return commandOf<15>();
}

Command* PopupPlayer::REWIND()
{
    return commandOf<1>();
}

Command* PopupPlayer::SKIP_REWIND()
{
    return commandOf<13>();
}

Command* PopupPlayer::DELETE()
{
    return commandOf<12>();
}

} // namespace DisplayAPI
