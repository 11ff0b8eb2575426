#include "host/variants/telephony/Conference.h"

#include "host/variants/telephony/CallIcons.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr int INDENT = 12;

/// With the conference itself as many lines as two status lines and a title leave on the full panel.
constexpr std::size_t MOST_IN_VIEW = 3;

CallConnectedItemSide::Call* callOf(CallConnectedItem* facade)
{
    auto* const row = facade != nullptr ? facade->getPrivateImplemetation() : nullptr;
    auto* const side = dynamic_cast<CallConnectedItemSide*>(row);
    return side != nullptr ? &side->call() : nullptr;
}

} // namespace

ConferenceCallItemSide::Conference::Conference(OwnedText text, bool isOpen, Panel where)
    : Call("ConferenceCallItem", std::move(text), true, false, where), mIsOpen(isOpen)
{
    duration.begin();
}

ConferenceCallItemSide::Conference::~Conference()
{
    for (const Member& member : mMembers)
        member.call->whole = nullptr;
}

void ConferenceCallItemSide::Conference::append(CallConnectedItem* facade, bool isTitle)
{
    Call* const call = callOf(facade);
    if (call == nullptr || dynamic_cast<Conference*>(call) != nullptr)
        return;
    if (call->whole != nullptr)
        call->whole->leave(*call);
    mMembers.push_back({facade, call});
    call->whole = this;
    if (isTitle || title == nullptr)
        title = call;
    changed();
}

void ConferenceCallItemSide::Conference::leave(Call& member)
{
    mMembers.erase(mMembers.begin() + indexOf(&member));
    member.whole = nullptr;
    if (selected == &member)
        selected = nullptr;
    if (title == &member)
        title = memberAt(0);
    changed();
}

void ConferenceCallItemSide::Conference::localeChanged()
{
    for (const Member& member : mMembers)
        member.call->row.show(member.call->look());
    changed();
}

void ConferenceCallItemSide::Conference::setSuffix(OwnedText text)
{
    mSuffix = std::move(text);
    changed();
}

void ConferenceCallItemSide::Conference::select(int index)
{
    selected = memberAt(index);
    changed();
}

int ConferenceCallItemSide::Conference::indexOf(const Call* member) const
{
    const auto found =
        std::find_if(mMembers.begin(), mMembers.end(), [=](const Member& one) { return one.call == member; });
    return found != mMembers.end() ? static_cast<int>(found - mMembers.begin()) : -1;
}

CallConnectedItemSide::Call* ConferenceCallItemSide::Conference::memberAt(int index) const
{
    const bool isThere = index >= 0 && index < static_cast<int>(mMembers.size());
    return isThere ? mMembers[static_cast<std::size_t>(index)].call : nullptr;
}

CallConnectedItem* ConferenceCallItemSide::Conference::facadeAt(int index) const
{
    return memberAt(index) != nullptr ? mMembers[static_cast<std::size_t>(index)].facade : nullptr;
}

PegString ConferenceCallItemSide::Conference::firstLine() const
{
    return ICC::fromUTF8toUNICODE(joined((title != nullptr ? title->who : who).text(), mSuffix.text()));
}

const host::Icon* ConferenceCallItemSide::Conference::arrow() const
{
    return mIsOpen ? &host::icons::SMALL_ARROW_DOWN : &host::icons::SMALL_ARROW_RIGHT;
}

host::LinesLook::Line ConferenceCallItemSide::Conference::lineOf(const Call& member) const
{
    return {.text = member.who.shown(),
            .icon = iconOf(member.state),
            .bold = &member == selected,
            .indent = INDENT,
            .dimmed = !member.isEnabled};
}

/// The selected one is in view.
std::size_t ConferenceCallItemSide::Conference::firstInView() const
{
    const auto current = static_cast<std::size_t>(std::max(indexOf(selected), 0));
    return current < MOST_IN_VIEW ? 0 : current + 1 - MOST_IN_VIEW;
}

host::LinesLook ConferenceCallItemSide::Conference::look() const
{
    host::LinesLook look = Call::look();
    if (!mIsOpen || mMembers.empty())
        return look;
    if (isSmall()) {
        look.lines.resize(1);
        look.lines.push_back(lineOf(selected != nullptr ? *selected : *mMembers.front().call));
        return look;
    }
    const std::size_t first = firstInView();
    const std::size_t end = std::min(first + MOST_IN_VIEW, mMembers.size());
    for (std::size_t member = first; member < end; ++member)
        look.lines.push_back(lineOf(*mMembers[member].call));
    return look;
}

bool ConferenceCallItemSide::Conference::key(int key)
{
    switch (key) {
    case PK_RIGHT: return mIsOpen ? selected != nullptr && selected->openMenu() : open(true);
    case PK_LEFT: return mIsOpen && open(false);
    case PK_UP: return mIsOpen && selected != nullptr && moveTo(indexOf(selected) - 1);
    case PK_DOWN: return mIsOpen && memberAt(indexOf(selected) + 1) != nullptr && moveTo(indexOf(selected) + 1);
    default: return false;
    }
}

bool ConferenceCallItemSide::Conference::open(bool on)
{
    mIsOpen = on;
    changed();
    return true;
}

/// Before the first one is the title, where none is selected.
bool ConferenceCallItemSide::Conference::moveTo(int index)
{
    select(index);
    return true;
}

} // namespace DisplayAPI
