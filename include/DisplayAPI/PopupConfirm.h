#pragma once

#include "DisplayAPI/Dialog.h"

#include <memory>
#include <string>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class Command;
class CommandListener;
class MenuCommand;
class PopupConfirmPrivateIfc;

/// A popup that asks something: a question, a line of details, and answers at its foot. Choosing an answer raises it
/// and takes the popup off the screen.
///
/// Threads: safe from any thread. Off the GUI thread everything waits; what does nothing, and HIDDEN_COMMAND(), run
/// here. A request that nobody knows is completed without effect.
/// Ownership: a popup owns its GUI-thread side and the translations that its texts are given. Commands and listeners
/// are not owned. A command that has been added may be deleted meanwhile: it keeps its text and, chosen, raises
/// nothing.
class DISPLAYAPI_EXPORT PopupConfirm : public Dialog {
public:
    /// What kind of question it is, which an icon tells; any value travels through, and an unknown one has no icon.
    enum PopupState : int { PLAIN = 0, QUESTION = 1, WARNING = 2, FAILURE = 3 };

    /// `wayBack`: on the 208 x 42 panel the left key goes back without an answer; on the others it always does. On
    /// hardware of sub-variant 3 a popup made on the GUI thread has none on the small panel.
    explicit PopupConfirm(bool wayBack);
    PopupConfirm(const PopupConfirm&) = delete;
    PopupConfirm& operator=(const PopupConfirm&) = delete;
    ~PopupConfirm() override;

    /// Both are GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;
    DisplayablePrivateIfc* getPrivateImpl() override;

    /// Raised once each time that the popup has taken itself off its display: after an answer, on the way back, when
    /// its time is up, and by dismiss(). Not where another screen has taken its place, or it is deleted. Recognised by
    /// its address.
    static MenuCommand* HIDDEN_COMMAND();

    /// The question, and what stands before it.
    void setLine1PrefixText(const std::string& text);
    void setLine1PrefixText(TranslationInfo* text);
    void setText(const std::string& text);
    void setText(TranslationInfo* text);
    void setLine1Text(const std::string& text) { setText(text); }
    void setLine1Text(TranslationInfo* text) { setText(text); }

    /// What it is about. On two lines it has room only while there are no answers.
    void setLine2PrefixText(const std::string& text);
    void setLine2PrefixText(TranslationInfo* text);
    void setLine2Text(const std::string& text);
    void setLine2Text(TranslationInfo* text);

    /// The first line is who that is, or that nobody knows. The number has no effect.
    void setPartyDetails(const CallPartyIdentifier& party, int number);

    /// These do nothing; a translation stays the caller's.
    void setStimulusText(const std::string& text);
    void setStimulusText(TranslationInfo* text);
    void clearStimulusText();
    void showStimulusTextInHeader(bool on);

    void setState(PopupState state);

    /// The milliseconds without a key after which the popup leaves the screen; 0 and less is never.
    void setTimeout(int milliseconds);

    /// Puts it on top of its display: the one it was on, as long as no full screen has replaced it there, or else the
    /// one made last; nothing where there is none. Where it is on top already, its time-out begins anew.
    /// Display::setCurrent() shows it as well.
    void show();

    /// Takes it off the screen; nothing where it is on none.
    void dismiss();

    /// Appends an answer; null and a deleted one are ignored.
    void addCommand(Command* command);

    /// Ignored where it is not there.
    void removeCommand(Command* command);

    /// The answer that is selected when the popup comes to the screen, now or later added; null is the first one.
    void setDefaultCommand(Command* command);

    /// Removes all answers, and forgets the default one.
    void clearCommands();

    /// The selected answer; -1 where there is none, 0 where the popup has no GUI-thread side.
    int getSelectedIndex() const;

    /// Whether the user has moved the selection since the popup came to the screen or its answers were cleared.
    bool selectionHasChanged() const;

    /// A listener is added once; null is ignored. It has to outlive the popup, or else live until a waiting call after
    /// removeCommandListener() has returned.
    void addCommandListener(CommandListener* listener);
    void removeCommandListener(CommandListener* listener);

private:
    struct Ops;

    void create(bool wayBack);
    void destroy();

    PopupConfirmPrivateIfc* mImplementation = nullptr;
};

} // namespace DisplayAPI
