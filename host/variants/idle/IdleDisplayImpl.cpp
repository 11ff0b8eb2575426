#include "host/variants/idle/IdleDisplayImpl.h"

#include "DisplayAPI/IdleDisplay.h"
#include "DisplayAPI/PartyText.h"
#include "host/variants/popup/InitialKey.h"
#include "utilities/ICC.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"
#include "widgets/KestrelApplication.h"

#include <utility>

namespace DisplayAPI {

namespace {

bool isDialled(int key)
{
    return (key >= PK_0 && key <= PK_9) || key == PK_STAR || key == PK_HASH;
}

/// Its address first: the arrow stands for it unless the application says otherwise.
host::IdleForwarding shownForwarding(const ForwardingText& forwarding, std::optional<bool> wantsArrow)
{
    host::IdleForwarding shown{forwarding.shown()};
    shown.hasArrow = wantsArrow.value_or(!shown.address.empty());
    return shown;
}

} // namespace

PegString ForwardingText::shown() const
{
    std::string all = text.text();
    if (hasParty)
        all += (all.empty() ? "" : " ") +
               party.value_or(TranslationInfo(UNKNOWN_PARTY, DisplayablePrivate::commonTranslator).getString());
    return ICC::fromUTF8toUNICODE(all);
}

IdleDisplaySide::Impl::Impl(IdleDisplaySide& idle, IdleDisplay* facade, const std::string& logo, Panel panelOfScreen)
    : self(idle), owner(facade), panel(panelOfScreen)
{
    screen->setMessageTarget(this);
    screen->setLogo(logo);
}

IdleDisplaySide::Impl::~Impl()
{
    if (screen != nullptr)
        screen->setMessageTarget(nullptr);
}

int IdleDisplaySide::Impl::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: changed(); break;
    case PM_CLICKED:
        if (owner != nullptr)
            owner->fireMenuCommand(message.iData);
        changed();
        break;
    case PM_KEY: key(message.iData); break;
    case PM_APPLICATION_CHANGED: applicationChanged(message); break;
    default: return PegThing::Message(message);
    }
    return 0;
}

void IdleDisplaySide::Impl::changed()
{
    if (isOnScreen())
        self.generateDisplayChangedEvent();
}

/// What the screen has no use for.
void IdleDisplaySide::Impl::key(int key)
{
    if (owner == nullptr)
        return;
    if (key == PK_LEFT)
        owner->fireBackCommand();
    else if (asksForDialer && isDialled(key))
        openDialer(key);
}

/// The facade makes a dialer where there is none. Whoever observes what comes up may delete the idle screen.
void IdleDisplaySide::Impl::openDialer(int key)
{
    const std::weak_ptr<void> life = mLife;
    if (openWithInitialKey(dialer != nullptr ? dialer : owner->getDialer(), key, self) && !life.expired())
        change([](host::IdleScreen& idle) { idle.closeMenu(); });
}

/// Where no text is another one, the side from which it is read may be.
void IdleDisplaySide::Impl::localeChanged(const std::string& locale)
{
    if (owner != nullptr)
        owner->localeChanged(locale);
    change([](host::IdleScreen& idle) { idle.Invalidate(); });
}

void IdleDisplaySide::Impl::applicationChanged(const PegMessage& message)
{
    if (message.iData == KestrelApplication::LOCALE)
        localeChanged(ICC::fromUNICODEtoUTF8(*static_cast<const PegString*>(message.pData)));
    change([](host::IdleScreen& idle) { idle.renewClock(); });
}

host::IdleContents IdleDisplaySide::Impl::contents() const
{
    return {.name = ICC::fromUTF8toUNICODE(usesDisplayId ? displayId : number),
            .branding = ICC::fromUTF8toUNICODE(branding),
            .forwarding = shownForwarding(forwarding, wantsArrow),
            .serverForwarding = shownForwarding(serverForwarding, {}),
            .messages = waiting,
            .missedCalls = missedCalls,
            .hasMobileUser = hasMobileUser};
}

void IdleDisplaySide::Impl::renew()
{
    change([&](host::IdleScreen& idle) { idle.setContents(contents()); });
}

void IdleDisplaySide::Impl::addMessage(TranslatedText message)
{
    messages.push_back(std::move(message));
    change([&](host::IdleScreen& idle) { idle.addMessage(messages.back().shown()); });
}

void IdleDisplaySide::Impl::renewMessages()
{
    change([&](host::IdleScreen& idle) {
        idle.clearMessages();
        for (const TranslatedText& message : messages)
            idle.addMessage(message.shown());
    });
}

} // namespace DisplayAPI
