#pragma once

#include "DisplayAPI/ForwardedCallType.h"
#include "DisplayAPI/ListItem.h"

#include <string>

class CallPartyIdentifier;
class TranslationInfo;

namespace DisplayAPI {

class CallConnectedItemPrivateIfc;
class ContextMenu;
class Image;

/// A row of a List that shows a call: an icon for its state, who it is, a second and a third line, up to three further
/// ones, marks for what is said of the call, and how long it has lasted. Lines without a text take no room. On the
/// panel of two lines there is room for who it is, and for the first of the other lines that has a text.
///
/// Threads: safe from any thread. Off the GUI thread the destructor and everything that answers wait, everything else
/// posts and returns at once.
/// Ownership: a row owns its GUI-thread side, and that its context menu. Translations, pictures and what the menu
/// shows are not owned; translations have to live while they are shown, and null is an empty text. Parties are copied.
/// Without a current application a row has no GUI-thread side: a list takes no such row.
class DISPLAYAPI_EXPORT CallConnectedItem : public ListItem {
public:
    /// What the icon in front of the first line tells; any value travels through, and an unknown one has no icon.
    enum CallStateIcon : int {
        IDLE = 0,
        DIALLING = 1,
        PROCEEDING = 2,
        RINGING_BACK = 3,
        INCOMING = 4,
        CONNECTED = 5,
        HELD = 6,
        HELD_BY_OTHER = 7,
        HELD_BY_BOTH = 8,
        RESUMING = 9,
        TRANSFERRING = 10,           ///< blind: nobody has been asked
        TRANSFERRING_CONSULTED = 11, ///< the other one has said yes
        CONFERENCE = 12,
        FORWARDED = 13,
        ENDED = 14, ///< the second line has room for the reason
        FAILED = 15
    };

    /// What the padlock tells: there is none for an unknown one.
    enum CallSecurityState : int { SECURITY_UNKNOWN = 0, SECURE = 1, NOT_SECURE = 2 };

    // `timed`: the first line ends with the call's duration, once the state has been CONNECTED: "04:12", from one hour
    // on "1:04:12". It runs until stopDurationTimer(), ENDED or FAILED, and stands still from then on.
    // `hasMenu`: the row has a context menu, an arrow that says so, and the right key opens it.

    CallConnectedItem(CallStateIcon state, bool timed, bool hasMenu);

    /// The text is who it is, in UTF-8. The picture may be null.
    CallConnectedItem(CallStateIcon state, std::string text, Image* picture, bool timed, bool hasMenu);
    CallConnectedItem(CallStateIcon state, TranslationInfo* text, Image* picture, bool timed, bool hasMenu);

    /// Adopts a GUI-thread side; null leaves the row without one.
    explicit CallConnectedItem(CallConnectedItemPrivateIfc* implementation);

    CallConnectedItem(const CallConnectedItem&) = delete;
    CallConnectedItem& operator=(const CallConnectedItem&) = delete;
    ~CallConnectedItem() override;

    // The next three are GUI thread only.

    void processGuiRequest(GuiRequestEvent& request) override;

    /// The call's side, which a list shows, and not that of the base row, whose text is empty.
    ListItemPrivateIfc* getPrivateImplemetation() override;
    CallConnectedItemPrivateIfc* getPrivateImpl() const { return mCall; }

    void setState(CallStateIcon state);

    /// Who it is; the base row keeps its own, so that getText() stays empty.
    void setText(std::string text);
    void setText(TranslationInfo* text);

    /// This telephone shows none.
    void setPictureClip(Image* picture);

    void setSecondLineText(std::string text);
    void setSecondLineText(TranslationInfo* text);
    void clearSecondLineText();

    /// Empty, whatever has been set. Here, at once.
    std::string getSecondLineText() const { return {}; }

    /// The icon tells why the call has come here; it stands on the third line, without a text as well.
    void setThirdLineIconText(ForwardedCallType type, std::string text);

    /// Who it is, or that nobody knows; on the second line the text and behind it the translation; on the third one the
    /// second party, behind the icon of the type. What the lines had goes. The second party and the translation may be
    /// null.
    void setPartyDetails(const CallPartyIdentifier& party, CallPartyIdentifier* secondParty, ForwardedCallType type,
                         const std::string& text, TranslationInfo* translation);

    void setSecurityState(CallSecurityState state);
    void setRecordingState(bool on);
    void setDisplayHDIconStatus(bool on);

    /// Appends a line below the others; a fourth is ignored.
    void addGPULine(std::string text);
    void addGPULine(TranslationInfo* text);

    /// Takes the last of them away.
    void removeGPULine();

    /// What the call is known by. It is not shown; a translation is answered in the language of the moment.
    void setCallId(std::string id);
    void setCallId(TranslationInfo* id);
    std::string getCallId() const;

    void stopDurationTimer();

    /// A row that is not enabled is grey; nothing else changes. It is enabled at first.
    void enabled(bool on);
    bool getEnabled() const;

    /// Who the party is to the application; kept as it is, and not shown.
    void setPartyId(std::string id);
    std::string getPartyId() const;

    /// The row's own menu, which lives as long as the row; null where it has none. The application gives it commands
    /// and listeners.
    ContextMenu* getContextMenu();

protected:
    /// For derived rows: without any side, and nothing posted, so that the GUI thread does not meet the object before
    /// it is complete. They set the name, and make the base row by createEmpty().
    CallConnectedItem();

    /// GUI thread only; elsewhere only to be named, unread, in a call. The row owns the one that was set last.
    void setCallImplementation(CallConnectedItemPrivateIfc* implementation) { mCall = implementation; }
    void destroy();

private:
    struct Ops;

    void initialise(CallStateIcon state, std::string text, Image* picture, bool timed, bool hasMenu);
    void initialise(CallStateIcon state, TranslationInfo* text, Image* picture, bool timed, bool hasMenu);
    void initialiseEmpty(CallStateIcon state, bool timed, bool hasMenu);
    template <typename Text>
    void build(CallStateIcon state, Text text, Image* picture, bool timed, bool hasMenu);
    void begin();
    void keepPartyId(std::string id);
    std::string partyId() const;

    std::string mPartyId;
    CallConnectedItemPrivateIfc* mCall = nullptr;
};

} // namespace DisplayAPI
