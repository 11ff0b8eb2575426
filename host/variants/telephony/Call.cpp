#include "host/variants/telephony/Call.h"

#include "host/variants/telephony/CallIcons.h"
#include "host/widgets/Reading.h"
#include "utilities/ICC.h"

#include <algorithm>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr std::size_t MOST_FURTHER_LINES = 3;
constexpr std::size_t LINES_OF_SMALL_PANEL = 2;

} // namespace

CallConnectedItemSide::Call::Call(std::string name, OwnedText text, bool timed, bool withMenu, Panel where)
    : panel(where), isTimed(timed), hasMenu(withMenu), who(std::move(text)), row(std::move(name), *this),
      duration([this] { row.showEnd(ICC::fromUTF8toUNICODE(duration.text())); })
{
}

CallConnectedItemSide::Call::~Call()
{
    if (whole != nullptr)
        whole->leave(*this);
}

void CallConnectedItemSide::Call::changed()
{
    Whole* const conference = whole;
    row.show(look()); // tells who hears its list: it may be gone then, unless it is a member and stands in none
    if (conference != nullptr)
        conference->memberChanged();
}

void CallConnectedItemSide::Call::setState(CallConnectedItem::CallStateIcon newState)
{
    state = newState;
    if (isTimed && state == CallConnectedItem::CONNECTED)
        duration.begin();
    else if (state == CallConnectedItem::ENDED || state == CallConnectedItem::FAILED)
        duration.end();
    changed();
}

void CallConnectedItemSide::Call::addMore(OwnedText text)
{
    if (more.size() == MOST_FURTHER_LINES)
        return;
    more.push_back(std::move(text));
    changed();
}

host::LinesLook CallConnectedItemSide::Call::look() const
{
    host::LinesLook look;
    look.lines = {{.text = firstLine(), .icon = iconOf(state)}};
    const auto add = [&](const PegString& text, const host::Icon* icon) {
        if (!text.empty() || icon != nullptr)
            look.lines.push_back({.text = text, .icon = icon});
    };
    add(second.shown(), second.icon);
    add(third.shown(), third.icon);
    for (const OwnedText& text : more)
        add(text.shown(), nullptr);
    if (isSmall() && look.lines.size() > LINES_OF_SMALL_PANEL)
        look.lines.resize(LINES_OF_SMALL_PANEL);
    look.marks = marks();
    look.end = ICC::fromUTF8toUNICODE(duration.text());
    look.endRuns = duration.runs();
    look.dimmed = !isEnabled;
    return look;
}

std::vector<const host::Icon*> CallConnectedItemSide::Call::marks() const
{
    using namespace host::icons;
    std::vector<const host::Icon*> all{isRecorded ? &RECORDING : nullptr, isHd ? &HD : nullptr, iconOf(security),
                                       arrow()};
    std::erase(all, nullptr);
    return all;
}

const host::Icon* CallConnectedItemSide::Call::arrow() const
{
    using namespace host::icons;
    return hasMenu ? &SMALL_ARROW_RIGHT : nullptr;
}

bool CallConnectedItemSide::Call::key(int key)
{
    return key == PK_RIGHT && openMenu();
}

ContextMenu* CallConnectedItemSide::Call::menu()
{
    if (hasMenu && mMenu == nullptr)
        mMenu = std::make_unique<ContextMenu>(true);
    return mMenu.get();
}

bool CallConnectedItemSide::Call::openMenu()
{
    if (mMenu == nullptr || mMenu->getSelectedIndex() < 0)
        return false;
    mMenu->show();
    return true;
}

} // namespace DisplayAPI
