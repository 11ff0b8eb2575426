#pragma once

#include "DisplayAPI/Dialog.h"
#include "DisplayAPI/ForwardedCallType.h"

#include <string>
#include <vector>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class CommandListener;
class Image;
class MenuCommand;
class PopupCallPrivateIfc;

/// A popup that tells who calls, or is called: two lines, an auxiliary one, the state of the call, and commands at its
/// foot. A command is raised and leaves the popup where it is: the call decides how long it stays.
/// Display::setCurrent() shows it.
///
/// Threads: safe from any thread but for the listeners' operations, which are the GUI thread's: they are not carried
/// there. Off the GUI thread everything else waits. A request that nobody knows is completed without effect.
/// Ownership: a popup owns its GUI-thread side and the translations that its texts are given. Parties are copied.
/// Commands, pictures and listeners are not owned. A command that has been added may be deleted meanwhile: it keeps its
/// text and raises nothing.
class DISPLAYAPI_EXPORT PopupCall : public Dialog {
public:
    /// What an icon on the first line tells; any value travels through, and an unknown one has no icon.
    enum CallState : int {
        IDLE = 0,
        INCOMING = 1,
        DIALLING = 2,
        RINGING_BACK = 3,
        CONNECTED = 4,
        HELD = 5,
        TRANSFERRING = 6,
        FORWARDED = 7,
        ENDED = 8,
        FAILED = 9
    };

    /// What a mark at the end of the first line tells: there is none for NORMAL and for an unknown one.
    enum CallPriority : int { NORMAL = 0, URGENT = 1, EMERGENCY = 2 };

    PopupCall();

    /// Adopts a GUI-thread side that has been made already; null is none.
    explicit PopupCall(PopupCallPrivateIfc* implementation);
    PopupCall(const PopupCall&) = delete;
    PopupCall& operator=(const PopupCall&) = delete;
    ~PopupCall() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Lines without a text and an icon take no room. On two lines there is room for the first one and the commands.
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
    void setAuxText(const std::string& text);

    /// The line is who that is, or that nobody knows.
    void setLine1Text(const CallPartyIdentifier& party);
    void setLine2Text(const CallPartyIdentifier& party);

    /// Who it is, for whom the call was meant with an icon that tells why it is here, and both texts on the auxiliary
    /// line. What the three lines had goes. The second party and the translation may be null.
    void setPopupCallDetails(CallPartyIdentifier& party, CallPartyIdentifier* redirecting, ForwardedCallType type,
                             const std::string& text, TranslationInfo* translation);

    /// These do nothing; a translation stays the caller's.
    void setStimulusText(const std::string& text);
    void setStimulusText(TranslationInfo* text);
    void clearStimulusText();
    void showStimulusTextInHeader(bool on);

    void setState(CallState state, CallPriority priority);

    /// This telephone shows none.
    void setPictureClip(Image* picture);

    /// Appends a command to the bar; null and a deleted one are ignored.
    void addCommand(MenuCommand* command);

    /// The command that is selected when the popup comes to the screen, now or later added; null is the first one.
    void setDefaultCommand(MenuCommand* command);

    /// Removes all, and forgets the default one.
    void clearCommands();

    /// clearCommands(), then addCommand() for each: a wait for each of them.
    void setCommands(const std::vector<MenuCommand*>& commands);

    /// Takes it off the screen; nothing where it is on none.
    void dismiss();

    /// The selected command of the bar; -1 where there is none, 0 where the popup has no GUI-thread side.
    int getSelectedIndex() const;

    /// Whether the user has moved the selection since the popup came to the screen or its commands were cleared.
    bool selectionHasChanged() const;

    /// GUI thread only, as these are not carried there; nothing where there is no GUI-thread side. A listener is added
    /// once; null is ignored. It has to outlive the popup, or else be removed before.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

private:
    struct Ops;

    void create();
    void destroy();

    PopupCallPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
