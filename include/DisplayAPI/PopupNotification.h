#pragma once

#include "DisplayAPI/Dialog.h"
#include "DisplayAPI/ForwardedCallType.h"

#include <string>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class MenuCommand;
class PopupNotificationPrivateIfc;

/// A popup that tells something in up to three lines, and goes by itself, by a key, or when the application says so.
///
/// Threads: safe from any thread but for the listeners' operations, which are the GUI thread's: they are not carried
/// there. Off the GUI thread everything else waits. A request that nobody knows is completed without effect.
/// Ownership: a popup owns its GUI-thread side and the translations that it is given. Parties are copied, listeners are
/// not owned.
class DISPLAYAPI_EXPORT PopupNotification : public Dialog {
public:
    /// What kind of news it is, which an icon on the first line tells; any value travels through, and an unknown one
    /// has no icon.
    enum InfoType : int { PLAIN = 0, INFORMATION = 1, WARNING = 2, FAILURE = 3, SUCCESS = 4 };

    /// The icon on the second line; any value travels through, and an unknown one is none.
    enum IconElemType : int {
        NO_ICON = 0,
        ICON_CALL = 1,
        ICON_MISSED_CALL = 2,
        ICON_FORWARDED = 3,
        ICON_LETTER = 4,
        ICON_PERSON = 5,
        ICON_PADLOCK = 6
    };

    PopupNotification();
    PopupNotification(const PopupNotification&) = delete;
    PopupNotification& operator=(const PopupNotification&) = delete;
    ~PopupNotification() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Raised once each time that the popup has taken itself off its display: by a key, when its time is up, and by
    /// dismiss(). Not where another screen has taken its place, or it is deleted. Recognised by its address.
    static MenuCommand* HIDDEN_COMMAND();

    /// Lines without a text and an icon take no room. On two lines there is none for the third.
    void setLine1PrefixText(const std::string& text);
    void setLine1PrefixText(TranslationInfo* text);
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setLine1Text(const std::string& text) { setText(text); }
    void setLine1Text(TranslationInfo* text) { setText(text); }
    void setLine2PrefixText(const std::string& text);
    void setLine2PrefixText(TranslationInfo* text);
    void setLine2Text(const std::string& text);
    void setLine2Text(TranslationInfo* text);
    void setLine3Text(const std::string& text);
    void setLine3Text(TranslationInfo* text);

    /// The second line is who that is, or that nobody knows.
    void setPartyDetails(const CallPartyIdentifier& party);

    /// Announces a call for `called` that comes here: `called` is the first line, `caller` the second, with an icon
    /// that tells why.
    void setForwardNotification(CallPartyIdentifier& caller, CallPartyIdentifier& called, ForwardedCallType type);

    void setLine2Icon(IconElemType icon);

    /// The milliseconds without a key after which the popup leaves the screen; 0 and less is never.
    void setTimeout(int milliseconds);

    /// Whether OK and the left key take it off the screen, which a mark tells; they do not at first.
    void setDismissible(bool on);

    void setType(InfoType type);

    /// Puts it on top of its display: the one it was on, as long as no full screen has replaced it there, or else the
    /// one made last; nothing where there is none. Where it is on top already, its time-out begins anew.
    /// Display::setCurrent() shows it as well.
    void show();

    /// Takes it off the screen; nothing where it is on none.
    void dismiss();

    /// GUI thread only, as these are not carried there; nothing where there is no GUI-thread side. A listener is added
    /// once; null is ignored. It has to outlive the popup, or else be removed before.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

private:
    struct Ops;

    void create();
    void destroy();

    PopupNotificationPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
