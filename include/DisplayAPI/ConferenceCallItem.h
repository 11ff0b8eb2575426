#pragma once

#include "DisplayAPI/CallConnectedItem.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class ConferenceCallItemPrivateIfc;

/// A row of a List that shows a conference. Its first line is who the title member is, or the conference's own text
/// where there is none, with a suffix; open, it has a line for each member below. The right key opens it and the left
/// one closes it; in the open one up and down go through the members, of which one may be selected, and the right key
/// opens the context menu of that one. Its duration counts from when it is made. It has no menu of its own.
/// On the panel of two lines an open one shows the selected member, or else the first.
///
/// Threads: safe from any thread. What it has of its own waits off the GUI thread, and so do the constructors but the
/// one with an implementation; what it has of a call does as that says.
/// Ownership: as for a call. Members are the application's, and stand in no list meanwhile; one that is deleted leaves
/// its conference first. The suffix's translation is not owned.
class DISPLAYAPI_EXPORT ConferenceCallItem : public CallConnectedItem {
public:
    /// The text is UTF-8. `open`: whether it shows its members at first.
    ConferenceCallItem(CallStateIcon state, std::string text, bool open);
    ConferenceCallItem(CallStateIcon state, TranslationInfo* text, bool open);

    /// Adopts a GUI-thread side, which has to be that of a call as well; null leaves the row without one.
    explicit ConferenceCallItem(ConferenceCallItemPrivateIfc* implementation);

    ConferenceCallItem(const ConferenceCallItem&) = delete;
    ConferenceCallItem& operator=(const ConferenceCallItem&) = delete;
    ~ConferenceCallItem() override;

    // The next two are GUI thread only.

    void processGuiRequest(GuiRequestEvent& request) override;
    ConferenceCallItemPrivateIfc* getPrivateImpl() const { return mConference; }

    /// Behind the others. `isTitle` makes it the title member; so does being the first. One that stands in a conference
    /// leaves that first, which may be this one. Null, a call without a GUI-thread side and a conference are ignored.
    void appendCall(CallConnectedItem* call, bool isTitle);

    /// The first that is left becomes the title member where that one goes. What is not there is ignored.
    void removeCall(CallConnectedItem* call);
    void removeCall(int index);

    /// Selects a member; none where there is no such one.
    void setCallItem(int index);

    /// Null where there is none.
    CallConnectedItem* getSelectedMember() const;
    CallConnectedItem* getTitleMember() const;
    CallConnectedItem* getIndexedMember(int index) const;

    /// What stands behind the title; an empty one takes no room.
    void setTitleSuffix(const std::string& suffix);
    void setTitleSuffix(TranslationInfo* suffix);

    /// Looks translated texts up again, as a list does when the language changes.
    void localeChanged(std::string locale);

private:
    struct Ops;

    void initialise(CallStateIcon state, std::string text, bool open);
    void initialise(CallStateIcon state, TranslationInfo* text, bool open);
    template <typename Text>
    void build(CallStateIcon state, Text text, bool open);
    void begin();
    void destroy();

    ConferenceCallItemPrivateIfc* mConference = nullptr;
};

} // namespace DisplayAPI
