#pragma once

#include "apps/deskphone/CallRow.h"
#include "apps/deskphone/Calls.h"
#include "apps/deskphone/ConferenceRow.h"

#include <list>
#include <optional>
#include <vector>

namespace DisplayAPI {
class List;
class ListItem;
} // namespace DisplayAPI

namespace deskphone {

/// The calls that go on as rows of a list, in the order in which they came; the two of a conference of mine are one
/// row. On the threads that answer the user. Make and delete it on the GUI thread, before the list goes.
class CallRows {
public:
    /// A call, or the conference that it is in.
    struct Chosen {
        exchange::CallId call;
        exchange::CallId partner; ///< of the whole conference; else NO_CALL
    };

    CallRows(DisplayAPI::List& list, CallRow::Words words);
    CallRows(const CallRows&) = delete;
    CallRows& operator=(const CallRows&) = delete;
    ~CallRows();

    /// Has the list show these and no others, each as it is now. One that comes is selected.
    void show(const std::vector<const PhoneCall*>& calls);

    bool isEmpty() const { return mRows.empty(); }

    /// Of whom the row at that place is; nothing where there is none.
    std::optional<Chosen> at(int row) const;

private:
    using Conferences = std::list<ConferenceRow>;

    void breakUp(const std::vector<const PhoneCall*>& calls);
    void removeOver(const std::vector<const PhoneCall*>& calls);
    void showCall(const PhoneCall& call);
    void showConference(const PhoneCall& call, const PhoneCall& partner);
    Conferences::iterator bringTogether(CallRow& title, CallRow& other);
    Conferences::iterator takeApart(Conferences::iterator conference);
    int placeOf(const DisplayAPI::ListItem* item) const;
    CallRow& rowOf(exchange::CallId call);

    DisplayAPI::List& mList;
    CallRow::Words mWords;
    std::list<CallRow> mRows;
    Conferences mConferences; ///< goes before the rows of its members
};

} // namespace deskphone
