#include "apps/deskphone/CallRows.h"

#include "DisplayAPI/List.h"

#include <algorithm>
#include <utility>

namespace deskphone {

using DisplayAPI::ListItem;
using exchange::CallId;

namespace {

using PhoneCalls = std::vector<const PhoneCall*>;

const PhoneCall* find(const PhoneCalls& calls, CallId call)
{
    const auto found = std::ranges::find(calls, call, &PhoneCall::id);
    return found != calls.end() ? *found : nullptr;
}

/// Who is in a conference of mine with it, once both have heard of that; null where there is none.
const PhoneCall* partnerOf(const PhoneCalls& calls, const PhoneCall& call)
{
    const PhoneCall* const partner = exchange::isTalk(call.state()) ? find(calls, call.last.with) : nullptr;
    const bool isMutual = partner != nullptr && exchange::isTalk(partner->state()) && partner->last.with == call.id();
    return isMutual ? partner : nullptr;
}

} // namespace

CallRows::CallRows(DisplayAPI::List& list, CallRow::Words words) : mList(list), mWords(std::move(words)) {}

CallRows::~CallRows()
{
    for (ConferenceRow& conference : mConferences)
        mList.remove(conference.item());
    mConferences.clear();
    for (const CallRow& row : mRows)
        mList.remove(row.item());
}

void CallRows::show(const PhoneCalls& calls)
{
    breakUp(calls);
    removeOver(calls);
    for (const PhoneCall* const call : calls)
        showCall(*call);
    for (const PhoneCall* const call : calls)
        if (const PhoneCall* const partner = partnerOf(calls, *call); partner != nullptr && call->id() < partner->id())
            showConference(*call, *partner);
}

std::optional<CallRows::Chosen> CallRows::at(int row) const
{
    const std::vector<ListItem*> items = mList.getItems();
    ListItem* const item = items.at(static_cast<std::size_t>(row));
    if (const auto found = std::ranges::find(mConferences, item, &ConferenceRow::item); found != mConferences.end()) {
        const CallId selected = found->selected();
        return selected != exchange::NO_CALL ? Chosen{selected, exchange::NO_CALL}
                                             : Chosen{found->title().call(), found->other().call()};
    }
    const auto found = std::ranges::find(mRows, item, &CallRow::item);
    return found != mRows.end() ? std::optional(Chosen{found->call(), exchange::NO_CALL}) : std::nullopt;
}

void CallRows::breakUp(const PhoneCalls& calls)
{
    const auto isOver = [&](const ConferenceRow& conference) {
        const PhoneCall* const call = find(calls, conference.title().call());
        const PhoneCall* const partner = call != nullptr ? partnerOf(calls, *call) : nullptr;
        return partner == nullptr || !conference.has(partner->id());
    };
    for (auto it = mConferences.begin(); it != mConferences.end();)
        it = isOver(*it) ? takeApart(it) : std::next(it);
}

/// Both stand where the conference was; who is gone leaves afterwards.
CallRows::Conferences::iterator CallRows::takeApart(Conferences::iterator conference)
{
    ListItem* const item = conference->item();
    ListItem* const title = conference->title().item();
    ListItem* const other = conference->other().item();
    const bool wasSelected = mList.getSelected() == item;
    const int place = placeOf(item);
    mList.remove(item);
    const auto next = mConferences.erase(conference);
    mList.insertAt(other, place);
    mList.insertAt(title, place);
    if (wasSelected)
        mList.setSelected(title);
    return next;
}

void CallRows::removeOver(const PhoneCalls& calls)
{
    std::erase_if(mRows, [&](const CallRow& row) {
        if (find(calls, row.call()) != nullptr)
            return false;
        mList.remove(row.item());
        return true;
    });
}

void CallRows::showCall(const PhoneCall& call)
{
    const auto row = std::ranges::find(mRows, call.id(), &CallRow::call);
    if (row != mRows.end())
        return row->update(call);
    DisplayAPI::CallConnectedItem* const item = mRows.emplace_back(call, mWords).item();
    mList.append(item);
    mList.setSelected(item);
}

void CallRows::showConference(const PhoneCall& call, const PhoneCall& partner)
{
    const auto has = [&](const ConferenceRow& conference) { return conference.has(call.id()); };
    auto conference = std::ranges::find_if(mConferences, has);
    if (conference == mConferences.end())
        conference = bringTogether(rowOf(call.id()), rowOf(partner.id()));
    conference->update(call, partner);
}

/// Where the first one stood.
CallRows::Conferences::iterator CallRows::bringTogether(CallRow& title, CallRow& other)
{
    const int place = std::min(placeOf(title.item()), placeOf(other.item()));
    mList.remove(title.item());
    mList.remove(other.item());
    ListItem* const item = mConferences.emplace_back(title, other, mWords).item();
    mList.insertAt(item, place);
    mList.setSelected(item);
    return std::prev(mConferences.end());
}

int CallRows::placeOf(const ListItem* item) const
{
    const std::vector<ListItem*> items = mList.getItems();
    return static_cast<int>(std::ranges::find(items, item) - items.begin());
}

CallRow& CallRows::rowOf(CallId call)
{
    return *std::ranges::find(mRows, call, &CallRow::call);
}

} // namespace deskphone
