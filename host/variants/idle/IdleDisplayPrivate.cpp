#include "variants/idle/IdleDisplayPrivate.h"

#include "DisplayAPI/IdleDisplay.h"
#include "DisplayAPI/Rectangles.h"
#include "host/variants/idle/IdleDisplayImpl.h"
#include "utilities/CallPartyIdentifier.h"
#include "utilities/ICC.h"

#include <utility>

namespace DisplayAPI {

namespace {

ForwardingText withParty(TranslationInfo* address, const CallPartyIdentifier* party)
{
    ForwardingText forwarding{TranslatedText(address), party != nullptr};
    std::string text;
    if (party != nullptr && party->getInterimNameNumber(text, false))
        forwarding.party = text;
    return forwarding;
}

} // namespace

IdleDisplaySide::IdleDisplaySide(IdleDisplay* owner, const std::string& logo, Panel panel)
    : mImpl(std::make_unique<Impl>(*this, owner, logo, panel))
{
}

IdleDisplaySide::~IdleDisplaySide() = default;

IdleDisplayPrivate::IdleDisplayPrivate(IdleDisplay* owner, const std::string& logo)
    : IdleDisplaySide(owner, logo, Panel::FULL)
{
}

IdleDisplayPrivateWP1::IdleDisplayPrivateWP1(IdleDisplay* owner, const std::string& logo)
    : IdleDisplaySide(owner, logo, Panel::SMALL)
{
}

PegThing* IdleDisplaySide::getWidget()
{
    return mImpl->screen.get();
}

void IdleDisplaySide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void IdleDisplaySide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

/// Also when what lay above has gone: an observer learns of it here.
void IdleDisplaySide::show()
{
    generateDisplayChangedEvent();
}

/// Its menu stays open under a popup.
void IdleDisplaySide::lostFocus() {}

std::string IdleDisplaySide::serialise()
{
    const PegThing* const widget = getWidget();
    return widget != nullptr ? mImpl->asText({toRect(widget->Area())}) : std::string();
}

std::string IdleDisplaySide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

void IdleDisplaySide::setSysWindowSize(int lines)
{
    if (hasSystemWindow())
        mImpl->change([=](host::IdleScreen& idle) { idle.setStatusLines(lines); });
}

void IdleDisplaySide::setSysWindowText(std::string text, int line)
{
    if (hasSystemWindow())
        mImpl->change([&](host::IdleScreen& idle) { idle.setStatusText(line, std::move(text)); });
}

/// Two lines have no room for others: there the system window pops up above the screen.
bool IdleDisplaySide::hasSystemWindow()
{
    return mImpl->panel == Panel::FULL;
}

/// What is to be translated is looked up anew.
void IdleDisplaySide::localeChanged(const std::string&)
{
    mImpl->renew();
    mImpl->renewMessages();
}

void IdleDisplaySide::setMessages(int count)
{
    mImpl->waiting = count;
    mImpl->renew();
}

void IdleDisplaySide::setMissedCalls(int count)
{
    mImpl->missedCalls = count;
    mImpl->renew();
}

void IdleDisplaySide::setForwardingAddress(const std::string& address)
{
    mImpl->forwarding = {TranslatedText(address)};
    mImpl->renew();
}

void IdleDisplaySide::setForwardingAddress(TranslationInfo* address)
{
    mImpl->forwarding = {TranslatedText(address)};
    mImpl->renew();
}

void IdleDisplaySide::setForwardingAddress(TranslationInfo* address, CallPartyIdentifier* party)
{
    mImpl->forwarding = withParty(address, party);
    mImpl->renew();
}

void IdleDisplaySide::setServerBasedForwardingAddress(const std::string& address)
{
    mImpl->serverForwarding = {TranslatedText(address)};
    mImpl->renew();
}

void IdleDisplaySide::setServerBasedForwardingAddress(TranslationInfo* address)
{
    mImpl->serverForwarding = {TranslatedText(address)};
    mImpl->renew();
}

void IdleDisplaySide::addCommand(const std::string& text)
{
    mImpl->change([&](host::IdleScreen& idle) { idle.addCommand(ICC::fromUTF8toUNICODE(text)); });
}

void IdleDisplaySide::setCommandText(int index, const std::string& text)
{
    mImpl->change([&](host::IdleScreen& idle) { idle.setCommandText(index, ICC::fromUTF8toUNICODE(text)); });
}

void IdleDisplaySide::clearCommands()
{
    mImpl->change([](host::IdleScreen& idle) { idle.clearCommands(); });
}

void IdleDisplaySide::setDefaultMenuCommand(int index)
{
    mImpl->change([=](host::IdleScreen& idle) { idle.setDefaultCommand(index); });
}

void IdleDisplaySide::hide()
{
    PegThing* const widget = getWidget();
    if (widget == nullptr || widget->Parent() == nullptr)
        return;
    gainOwnership();
    widget->Parent()->Remove(widget);
}

void IdleDisplaySide::addSystemMessage(const std::string& message)
{
    mImpl->addMessage(TranslatedText(message));
}

void IdleDisplaySide::addSystemMessage(TranslationInfo* message)
{
    mImpl->addMessage(TranslatedText(message));
}

void IdleDisplaySide::clearSystemMessages()
{
    mImpl->messages.clear();
    mImpl->renewMessages();
}

void IdleDisplaySide::changeLogo(const std::string& path)
{
    mImpl->change([&](host::IdleScreen& idle) { idle.setLogo(path); });
}

void IdleDisplaySide::setBrandingText(const std::string& text)
{
    mImpl->branding = text;
    mImpl->renew();
}

void IdleDisplaySide::setSystemWindowSize(int lines)
{
    setSysWindowSize(lines);
}

void IdleDisplaySide::setSystemWindowText(int line, const std::string& text)
{
    setSysWindowText(text, line);
}

void IdleDisplaySide::showDialer(bool on)
{
    mImpl->asksForDialer = on;
}

void IdleDisplaySide::setDialler(PopupDialer* dialler)
{
    mImpl->dialer = dialler;
}

void IdleDisplaySide::setForwardingIconVisible(bool on)
{
    mImpl->wantsArrow = on;
    mImpl->renew();
}

void IdleDisplaySide::setCurrentPhoneNumber(const std::string& number)
{
    mImpl->number = number;
    mImpl->renew();
}

void IdleDisplaySide::setDisplayIdUnicode(const std::string& name)
{
    mImpl->displayId = name;
    mImpl->renew();
}

void IdleDisplaySide::setUseDisplayId(bool on)
{
    mImpl->usesDisplayId = on;
    mImpl->renew();
}

void IdleDisplaySide::displayMobileUserIcon(bool on, int)
{
    mImpl->hasMobileUser = on;
    mImpl->renew();
}

} // namespace DisplayAPI
