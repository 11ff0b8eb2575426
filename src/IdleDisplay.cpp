#include "DisplayAPI/IdleDisplay.h"

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/IdleDisplayPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/PopupDialer.h"
#include "GuiThread.h"
#include "Operations.h"
#include "Variant.h"
#include "utilities/Semaphore.h"
#include "variants/idle/IdleDisplayPrivate.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CLEAN_UP = 1,
    SET_MESSAGES = 2,
    SET_MISSED_CALLS = 3,
    SET_FORWARDING_ADDRESS = 4,
    SET_FORWARDING_TRANSLATION = 5,
    SET_FORWARDING_PARTY = 6,
    SET_SERVER_ADDRESS = 7,
    SET_SERVER_TRANSLATION = 8,
    ADD_COMMAND = 9,
    CLEAR_COMMANDS = 10,
    SET_DEFAULT_MENU_COMMAND = 11,
    HIDE = 12,
    ADD_SYSTEM_MESSAGE = 13,
    ADD_SYSTEM_TRANSLATION = 14,
    CLEAR_SYSTEM_MESSAGES = 15,
    CHANGE_LOGO = 16,
    SET_BRANDING_TEXT = 17,
    SET_SYSTEM_WINDOW_SIZE = 18,
    SET_SYSTEM_WINDOW_TEXT = 19,
    SHOW_DIALLER = 20,
    ADD_DIALER = 21,
    GET_DIALER = 22,
    SET_FORWARDING_ICON_VISIBLE = 23,
    SET_CURRENT_PHONE_NUMBER = 24,
    SET_DISPLAY_ID = 25,
    SET_USE_DISPLAY_ID = 26,
    DISPLAY_MOBILE_USER_ICON = 27
};

constexpr bool DIALER_FLAG = true;
constexpr int DIALER_NUMBER = 3;
constexpr int ANY_KIND = 0;

using Ifc = IdleDisplayPrivateIfc;

/// The kind of mobile user does not travel.
void showMobileUserIcon(Ifc& side, bool on)
{
    side.displayMobileUserIcon(on, ANY_KIND);
}

/// A setter: the last call counts.
template <int CODE, auto FUNCTION>
using Sets = Superseding<Posts<CODE, FUNCTION>>;

} // namespace

struct IdleDisplay::Ops
    : Operations<
          Posts<CREATE, &IdleDisplay::create>, Waits<CLEAN_UP, &IdleDisplay::cleanUp>,
          Sets<SET_MESSAGES, &Ifc::setMessages>, Sets<SET_MISSED_CALLS, &Ifc::setMissedCalls>,
          Sets<SET_FORWARDING_ADDRESS, taking<const std::string&>(&Ifc::setForwardingAddress)>,
          Sets<SET_FORWARDING_TRANSLATION, taking<TranslationInfo*>(&Ifc::setForwardingAddress)>,
          Sets<SET_FORWARDING_PARTY, taking<TranslationInfo*, CallPartyIdentifier*>(&Ifc::setForwardingAddress)>,
          Sets<SET_SERVER_ADDRESS, taking<const std::string&>(&Ifc::setServerBasedForwardingAddress)>,
          Sets<SET_SERVER_TRANSLATION, taking<TranslationInfo*>(&Ifc::setServerBasedForwardingAddress)>,
          Waits<ADD_COMMAND, &IdleDisplay::addCommandImpl>, Posts<CLEAR_COMMANDS, &IdleDisplay::clearCommandsImpl>,
          Sets<SET_DEFAULT_MENU_COMMAND, &IdleDisplay::setDefaultMenuCommandImpl>, Posts<HIDE, &Ifc::hide>,
          Posts<ADD_SYSTEM_MESSAGE, taking<const std::string&>(&Ifc::addSystemMessage)>,
          Posts<ADD_SYSTEM_TRANSLATION, taking<TranslationInfo*>(&Ifc::addSystemMessage)>,
          Posts<CLEAR_SYSTEM_MESSAGES, &Ifc::clearSystemMessages>, Sets<CHANGE_LOGO, &Ifc::changeLogo>,
          Sets<SET_BRANDING_TEXT, &Ifc::setBrandingText>, Sets<SET_SYSTEM_WINDOW_SIZE, &Ifc::setSystemWindowSize>,
          Sets<SET_SYSTEM_WINDOW_TEXT, &Ifc::setSystemWindowText>, Sets<SHOW_DIALLER, &Ifc::showDialer>,
          Posts<ADD_DIALER, &IdleDisplay::addDialerImpl>, Waits<GET_DIALER, &IdleDisplay::dialer>,
          Sets<SET_FORWARDING_ICON_VISIBLE, &Ifc::setForwardingIconVisible>,
          Sets<SET_CURRENT_PHONE_NUMBER, &Ifc::setCurrentPhoneNumber>, Sets<SET_DISPLAY_ID, &Ifc::setDisplayIdUnicode>,
          Sets<SET_USE_DISPLAY_ID, &Ifc::setUseDisplayId>, Sets<DISPLAY_MOBILE_USER_ICON, &showMobileUserIcon>> {};

/// Guards the listeners. A leaf, but for the queue of notifications.
class IdleDisplay::ListenerLock {
public:
    explicit ListenerLock(IdleDisplay& display) : mLock(*display.mListenerLock) { mLock.take(-1); }
    ~ListenerLock() { mLock.give(); }
    ListenerLock(const ListenerLock&) = delete;
    ListenerLock& operator=(const ListenerLock&) = delete;

private:
    Semaphore& mLock;
};

IdleDisplay::IdleDisplay(std::string logo) : mListenerLock(std::make_unique<Semaphore>(Semaphore::AVAILABLE, 1, false))
{
    Ops::call<CREATE>(*this, mImplementation, std::move(logo));
}

IdleDisplay::IdleDisplay(IdleDisplayPrivateIfc* implementation)
    : mImplementation(implementation), mListenerLock(std::make_unique<Semaphore>(Semaphore::AVAILABLE, 1, false))
{
    name = "IdleDisplay";
}

IdleDisplay::~IdleDisplay()
{
    Ops::call<CLEAN_UP>(*this, mImplementation);
}

/// Without an application the telephone is taken for one with the full panel.
void IdleDisplay::create(const std::string& logo)
{
    name = "IdleDisplay";
    if (KestrelApplication::getCurrentApplication() == nullptr || isFullPanel())
        mImplementation = new IdleDisplayPrivate(this, logo);
    else
        mImplementation = new IdleDisplayPrivateWP1(this, logo);
}

void IdleDisplay::cleanUp()
{
    onlyOnGuiThread("IdleDisplay::cleanUp()");
    deleteDiallerIfNecessary();
    deletePrivateSide(mImplementation);
}

void IdleDisplay::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

DisplayablePrivateIfc* IdleDisplay::getPrivateImpl()
{
    return mImplementation;
}

void IdleDisplay::setMessages(int count)
{
    Ops::call<SET_MESSAGES>(*this, mImplementation, count);
}

void IdleDisplay::setMissedCalls(int count)
{
    Ops::call<SET_MISSED_CALLS>(*this, mImplementation, count);
}

void IdleDisplay::setForwardingAddress(const std::string& address)
{
    Ops::call<SET_FORWARDING_ADDRESS>(*this, mImplementation, address);
}

void IdleDisplay::setForwardingAddress(TranslationInfo* address)
{
    Ops::call<SET_FORWARDING_TRANSLATION>(*this, mImplementation, address);
}

void IdleDisplay::setForwardingAddress(TranslationInfo* address, CallPartyIdentifier* party)
{
    Ops::call<SET_FORWARDING_PARTY>(*this, mImplementation, address, party);
}

void IdleDisplay::clearForwardingAddress()
{
    setForwardingAddress(std::string());
}

void IdleDisplay::setServerBasedForwardingAddress(const std::string& address)
{
    Ops::call<SET_SERVER_ADDRESS>(*this, mImplementation, address);
}

void IdleDisplay::setServerBasedForwardingAddress(TranslationInfo* address)
{
    Ops::call<SET_SERVER_TRANSLATION>(*this, mImplementation, address);
}

void IdleDisplay::clearServerBasedForwardingAddress()
{
    setServerBasedForwardingAddress(std::string());
}

void IdleDisplay::setServerBasedForwardingAddress(TranslationInfo*, CallPartyIdentifier*) {}

void IdleDisplay::setForwardingIconVisible(bool on)
{
    Ops::call<SET_FORWARDING_ICON_VISIBLE>(*this, mImplementation, on);
}

void IdleDisplay::addCommand(Command* command)
{
    Ops::call<ADD_COMMAND>(*this, mImplementation, command);
}

void IdleDisplay::addCommandImpl(Command* command)
{
    const std::optional<std::string> text = Command::textOf(command);
    if (!text)
        return;
    if (mImplementation != nullptr)
        mImplementation->addCommand(*text);
    mCommands.push_back(command);
}

void IdleDisplay::clearCommands()
{
    Ops::call<CLEAR_COMMANDS>(*this, mImplementation);
}

void IdleDisplay::clearCommandsImpl()
{
    if (mImplementation != nullptr)
        mImplementation->clearCommands();
    mCommands.clear();
}

void IdleDisplay::setCommands(const std::vector<MenuCommand*>& commands)
{
    clearCommands();
    for (MenuCommand* command : commands)
        addCommand(command);
}

void IdleDisplay::setDefaultMenuCommand(MenuCommand* command)
{
    Ops::call<SET_DEFAULT_MENU_COMMAND>(*this, mImplementation, command);
}

void IdleDisplay::setDefaultMenuCommandImpl(MenuCommand* command)
{
    if (std::ranges::find(mCommands, command) == mCommands.end())
        addCommandImpl(command);
    const auto place = std::ranges::find(mCommands, command) - mCommands.begin();
    const int last = static_cast<int>(mCommands.size()) - 1;
    if (mImplementation != nullptr)
        mImplementation->setDefaultMenuCommand(std::min(static_cast<int>(place), last));
}

void IdleDisplay::hide()
{
    Ops::call<HIDE>(*this, mImplementation);
}

void IdleDisplay::addSystemMessage(std::string message)
{
    Ops::call<ADD_SYSTEM_MESSAGE>(*this, mImplementation, std::move(message));
}

void IdleDisplay::addSystemMessage(TranslationInfo* message)
{
    Ops::call<ADD_SYSTEM_TRANSLATION>(*this, mImplementation, message);
}

void IdleDisplay::clearSystemMessages()
{
    Ops::call<CLEAR_SYSTEM_MESSAGES>(*this, mImplementation);
}

void IdleDisplay::changeLogo(std::string path)
{
    Ops::call<CHANGE_LOGO>(*this, mImplementation, std::move(path));
}

void IdleDisplay::setBrandingText(const std::string& text)
{
    Ops::call<SET_BRANDING_TEXT>(*this, mImplementation, text);
}

void IdleDisplay::setSystemWindowSize(int lines)
{
    Ops::call<SET_SYSTEM_WINDOW_SIZE>(*this, mImplementation, lines);
}

void IdleDisplay::setSystemWindowText(int line, const std::string& text)
{
    Ops::call<SET_SYSTEM_WINDOW_TEXT>(*this, mImplementation, line, text);
}

void IdleDisplay::showDiallerOnInitialKeyEvent(bool on)
{
    Ops::call<SHOW_DIALLER>(*this, mImplementation, on);
}

void IdleDisplay::addDialer(PopupDialer* dialer)
{
    Ops::call<ADD_DIALER>(*this, mImplementation, dialer);
}

/// A dialer of its own that comes back stays its own.
void IdleDisplay::addDialerImpl(PopupDialer* dialer)
{
    if (dialer != mDialer)
        deleteDiallerIfNecessary();
    mDialer = dialer;
    connectDialer();
}

PopupDialer* IdleDisplay::getDialer()
{
    return Ops::call<GET_DIALER>(*this, mImplementation);
}

PopupDialer* IdleDisplay::dialer()
{
    if (mDialer == nullptr) {
        mDialer = new PopupDialer(DIALER_FLAG, DIALER_NUMBER);
        mHasMadeDialer = true;
        connectDialer();
    }
    return mDialer;
}

void IdleDisplay::connectDialer()
{
    if (mImplementation != nullptr)
        mImplementation->setDialler(mDialer);
}

void IdleDisplay::deleteDiallerIfNecessary()
{
    if (mHasMadeDialer)
        delete mDialer;
    mDialer = nullptr;
    mHasMadeDialer = false;
}

void IdleDisplay::setCurrentPhoneNumber(std::string number)
{
    Ops::call<SET_CURRENT_PHONE_NUMBER>(*this, mImplementation, std::move(number));
}

void IdleDisplay::setDisplayIdUnicode(std::string identity)
{
    Ops::call<SET_DISPLAY_ID>(*this, mImplementation, std::move(identity));
}

void IdleDisplay::setUseDisplayId(bool on)
{
    Ops::call<SET_USE_DISPLAY_ID>(*this, mImplementation, on);
}

void IdleDisplay::displayMobileUserIcon(bool on, int kind)
{
    if (isGuiThread() && mImplementation != nullptr)
        mImplementation->displayMobileUserIcon(on, kind);
    else
        Ops::call<DISPLAY_MOBILE_USER_ICON>(*this, mImplementation, on);
}

void IdleDisplay::setUsedWithTab(bool, Displayable*) {}

void IdleDisplay::setAsListenerForUnhandledKeypadEvents() {}

void IdleDisplay::localeChanged(std::string locale)
{
    onlyOnGuiThread("IdleDisplay::localeChanged()");
    if (mImplementation == nullptr)
        return;
    mImplementation->localeChanged(locale);
    for (std::size_t i = 0; i < mCommands.size(); ++i)
        if (const std::optional<std::string> text = Command::textOf(mCommands[i]))
            mImplementation->setCommandText(static_cast<int>(i), *text);
}

void IdleDisplay::addCommandListener(CommandListener* listener)
{
    if (listener == nullptr)
        return;
    const ListenerLock lock(*this);
    mListeners.push_back(listener);
}

void IdleDisplay::removeCommandListener(CommandListener* listener)
{
    const ListenerLock lock(*this);
    const auto found = std::ranges::find(mListeners, listener);
    if (found != mListeners.end())
        mListeners.erase(found);
}

void IdleDisplay::fireBackCommand()
{
    onlyOnGuiThread("IdleDisplay::fireBackCommand()");
    fire(BACK_COMMAND());
}

void IdleDisplay::fireMenuCommand(int index)
{
    onlyOnGuiThread("IdleDisplay::fireMenuCommand()");
    if (index < 0 || index >= static_cast<int>(mCommands.size()))
        return;
    Command* const command = mCommands[static_cast<std::size_t>(index)];
    if (Command::exists(command))
        fire(command);
}

void IdleDisplay::fire(Command* command)
{
    const ListenerLock lock(*this);
    for (CommandListener* listener : mListeners)
        listener->postCommandAction(command, this);
}

Command* IdleDisplay::BACK_COMMAND()
{
    static Command command("", Command::BACK);
    return &command;
}

} // namespace DisplayAPI
