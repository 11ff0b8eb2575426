#include "host/variants/list/SearchListImpl.h"

#include "DisplayAPI/ListBoxText.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/list/PanelBox.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

constexpr ListBoxCore::Commands SEARCH_COMMANDS{&SearchList::SELECT_COMMAND, &SearchList::RIGHT_COMMAND,
                                                &SearchList::BACK_COMMAND};

} // namespace

SearchListBoxSide::Impl::Impl(SearchListBoxSide& side, SearchList* facade, Panel panel)
    : owner(facade),
      core(side, facade, makeBox(panel), ListBoxCore::Back::KEY, SEARCH_COMMANDS, [facade](const std::string& locale) {
          if (facade != nullptr)
              facade->localeChanged(locale);
      })
{
    parked.Add(strip.get());
    strip->line().setKind(host::EditKind::NAME);
    strip->line().setMessageTarget(this);
    core.setTyped([this](int key) { openWith(key); });
    core.box()->setTellsKeypad(true);
    core.box()->setKeyTaker([this](const PegMessage& message) { return take(message); });
}

/// A box that lives on tells nobody who is gone.
SearchListBoxSide::Impl::~Impl()
{
    if (core.box() == nullptr)
        return;
    core.box()->setKeyTaker({});
    place(false);
}

int SearchListBoxSide::Impl::Message(const PegMessage& message)
{
    if (message.wType != PM_CURRENT_CHANGED)
        return PegThing::Message(message);
    userHasEdited();
    return 0;
}

/// What the line has no use for is the rows'.
bool SearchListBoxSide::Impl::take(const PegMessage& message)
{
    if (!isSearching())
        return false;
    if (message.wType == PM_KEY)
        return takeKey(message.iData);
    strip->line().released(message.iData);
    return false;
}

bool SearchListBoxSide::Impl::takeKey(int key)
{
    if (strip->line().key(key))
        return true;
    if (key == PK_LEFT)
        dismissPopup();
    return key == PK_LEFT;
}

/// With this key alone.
void SearchListBoxSide::Impl::openWith(int key)
{
    if (strip == nullptr || !strip->line().types(key))
        return;
    strip->line().setText({});
    place(true);
    strip->line().key(key);
}

void SearchListBoxSide::Impl::userHasEdited()
{
    text = strip->line().text();
    if (owner != nullptr)
        owner->callListeners(nullptr);
    core.changed();
}

void SearchListBoxSide::Impl::showPopup()
{
    if (core.box() == nullptr || isSearching())
        return;
    strip->line().setText(text);
    place(true);
    core.changed();
}

void SearchListBoxSide::Impl::dismissPopup()
{
    if (!isSearching())
        return;
    letGo();
    place(false);
    core.changed();
}

void SearchListBoxSide::Impl::place(bool inBox)
{
    if (!inBox)
        parked.Add(strip.get());
    else if (!isSearching())
        core.box()->setStrip(strip.get());
    showCounts();
}

void SearchListBoxSide::Impl::setText(const std::string& newText)
{
    text = ICC::fromUTF8toUNICODE(newText);
    if (strip == nullptr)
        return;
    strip->line().setText(text);
    text = strip->line().text();
    if (isSearching())
        core.changed();
}

void SearchListBoxSide::Impl::letGo()
{
    if (strip != nullptr)
        strip->line().letGo();
}

void SearchListBoxSide::Impl::setCount(int Impl::*which, int count)
{
    if (this->*which == count)
        return;
    this->*which = count;
    showCounts();
    core.changed();
}

/// "12/10000"; one of them alone where the other is not known.
PegString SearchListBoxSide::Impl::counts() const
{
    const std::string all = total >= 0 ? std::to_string(total) : std::string();
    const std::string found = matches >= 0 ? std::to_string(matches) : std::string();
    return ICC::fromUTF8toUNICODE(found + (all.empty() || found.empty() ? "" : "/") + all);
}

/// Where the strip has the title's place it takes them along.
void SearchListBoxSide::Impl::showCounts()
{
    KestrelListBox* const box = core.box();
    if (box == nullptr || strip == nullptr)
        return;
    box->setTitleEnd(counts());
    strip->setCounts(box->isTitleCovered() ? counts() : PegString());
}

std::string SearchListBoxSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    const KestrelListBox* const box = core.box();
    if (box == nullptr || !isVisible(box->Area(), visible))
        return {};
    std::string contents = listContents(*box, visible);
    const PegRect bar = box->titleArea();
    if (!counts().empty() && bar.bottom >= bar.top && isVisible(bar, visible))
        contents += screen::textLine(0, ICC::fromUNICODEtoUTF8(counts()));
    if (isSearching() && isVisible(strip->Area(), visible)) {
        std::string lines = screen::textLine(0, ICC::fromUNICODEtoUTF8(strip->line().shown()));
        if (!strip->counts().empty())
            lines += screen::textLine(1, ICC::fromUNICODEtoUTF8(strip->counts()));
        contents += screen::subItem("SearchPopup", lines);
    }
    return screen::object("SearchList", contents);
}

} // namespace DisplayAPI
