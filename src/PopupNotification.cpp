#include "DisplayAPI/PopupNotification.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PartyText.h"
#include "DisplayAPI/PopupNotificationPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/popup/PopupNotificationPrivate.h"

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SET_LINE1_PREFIX = 2,
    SET_LINE1_PREFIX_TRANSLATED = 3,
    SET_TEXT = 4,
    SET_TEXT_TRANSLATED = 5,
    SET_LINE2_ICON = 6,
    SET_LINE2_PREFIX = 7,
    SET_LINE2_PREFIX_TRANSLATED = 8,
    SET_LINE2 = 9,
    SET_LINE2_TRANSLATED = 10,
    SET_LINE3 = 11,
    SET_LINE3_TRANSLATED = 12,
    SET_TIMEOUT = 13,
    SET_DISMISSIBLE = 14,
    SET_TYPE = 15,
    SHOW = 16,
    DISMISS = 17,
    SET_FORWARD_NOTIFICATION = 18
};

constexpr unsigned long HIDDEN_ID = 1001012345;

using Ifc = PopupNotificationPrivateIfc;
using Owned = std::unique_ptr<TranslationInfo>;

constexpr auto TEXT = taking<std::string>;
constexpr auto TRANSLATION = taking<Owned>;

} // namespace

struct PopupNotification::Ops
    : Operations<Waits<CREATE, &PopupNotification::create>, Waits<DESTROY, &PopupNotification::destroy>,
                 Waits<SET_LINE1_PREFIX, TEXT(&Ifc::setLine1PrefixText)>,
                 Waits<SET_LINE1_PREFIX_TRANSLATED, TRANSLATION(&Ifc::setLine1PrefixText)>,
                 Waits<SET_TEXT, TEXT(&Ifc::setText)>, Waits<SET_TEXT_TRANSLATED, TRANSLATION(&Ifc::setText)>,
                 Waits<SET_LINE2_ICON, &Ifc::setLine2Icon>, Waits<SET_LINE2_PREFIX, TEXT(&Ifc::setLine2PrefixText)>,
                 Waits<SET_LINE2_PREFIX_TRANSLATED, TRANSLATION(&Ifc::setLine2PrefixText)>,
                 Waits<SET_LINE2, TEXT(&Ifc::setLine2Text)>,
                 Waits<SET_LINE2_TRANSLATED, TRANSLATION(&Ifc::setLine2Text)>,
                 Waits<SET_LINE3, TEXT(&Ifc::setLine3Text)>,
                 Waits<SET_LINE3_TRANSLATED, TRANSLATION(&Ifc::setLine3Text)>, Waits<SET_TIMEOUT, &Ifc::setTimeout>,
                 Waits<SET_DISMISSIBLE, &Ifc::setDismissible>, Waits<SET_TYPE, &Ifc::setType>, Waits<SHOW, &Ifc::open>,
                 Waits<DISMISS, &Ifc::dismiss>, Waits<SET_FORWARD_NOTIFICATION, &Ifc::setForwardNotification>> {};

PopupNotification::PopupNotification()
{
    name = "PopupNotification";
    Ops::call<CREATE>(*this, mImplementation);
}

PopupNotification::~PopupNotification()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void PopupNotification::create()
{
    if (isFullPanel())
        mImplementation = new PopupNotificationPrivate(this);
    else
        mImplementation = new PopupNotificationPrivateWP1(this);
}

void PopupNotification::destroy()
{
    deletePrivateSide(mImplementation);
}

void PopupNotification::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* PopupNotification::getPrivateImpl()
{
    return mImplementation;
}

/// Never destroyed: listeners may still hear it while the process ends.
MenuCommand* PopupNotification::HIDDEN_COMMAND()
{
    static MenuCommand command("WIDGET_IS_HIDDEN_EVENT", HIDDEN_ID);
    return &command;
}

void PopupNotification::setLine1PrefixText(const std::string& text)
{
    Ops::call<SET_LINE1_PREFIX>(*this, mImplementation, text);
}

void PopupNotification::setLine1PrefixText(TranslationInfo* text)
{
    Ops::call<SET_LINE1_PREFIX_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupNotification::setText(const std::string& text)
{
    Ops::call<SET_TEXT>(*this, mImplementation, text);
}

void PopupNotification::setText(TranslationInfo* text)
{
    Ops::call<SET_TEXT_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupNotification::setLine2PrefixText(const std::string& text)
{
    Ops::call<SET_LINE2_PREFIX>(*this, mImplementation, text);
}

void PopupNotification::setLine2PrefixText(TranslationInfo* text)
{
    Ops::call<SET_LINE2_PREFIX_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupNotification::setLine2Text(const std::string& text)
{
    Ops::call<SET_LINE2>(*this, mImplementation, text);
}

void PopupNotification::setLine2Text(TranslationInfo* text)
{
    Ops::call<SET_LINE2_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupNotification::setLine3Text(const std::string& text)
{
    Ops::call<SET_LINE3>(*this, mImplementation, text);
}

void PopupNotification::setLine3Text(TranslationInfo* text)
{
    Ops::call<SET_LINE3_TRANSLATED>(*this, mImplementation, Owned(text));
}

void PopupNotification::setPartyDetails(const CallPartyIdentifier& party)
{
    showParty(party, [this](const auto& text) { setLine2Text(text); });
}

void PopupNotification::setForwardNotification(CallPartyIdentifier& caller, CallPartyIdentifier& called,
                                               ForwardedCallType type)
{
    Ops::call<SET_FORWARD_NOTIFICATION>(*this, mImplementation, std::make_unique<CallPartyIdentifier>(caller),
                                        std::make_unique<CallPartyIdentifier>(called), type);
}

void PopupNotification::setLine2Icon(IconElemType icon)
{
    Ops::call<SET_LINE2_ICON>(*this, mImplementation, icon);
}

void PopupNotification::setTimeout(int milliseconds)
{
    Ops::call<SET_TIMEOUT>(*this, mImplementation, milliseconds);
}

void PopupNotification::setDismissible(bool on)
{
    Ops::call<SET_DISMISSIBLE>(*this, mImplementation, on);
}

void PopupNotification::setType(InfoType type)
{
    Ops::call<SET_TYPE>(*this, mImplementation, type);
}

void PopupNotification::show()
{
    Ops::call<SHOW>(*this, mImplementation);
}

void PopupNotification::dismiss()
{
    Ops::call<DISMISS>(*this, mImplementation);
}

void PopupNotification::addCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->addCommandListener(listener);
}

void PopupNotification::removeCommandListener(CommandListener* listener)
{
    if (mImplementation != nullptr)
        mImplementation->removeCommandListener(listener);
}

} // namespace DisplayAPI
