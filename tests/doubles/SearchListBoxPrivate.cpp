#include "variants/list/SearchListBoxPrivate.h"

#include "DisplayAPI/SearchList.h"
#include "doubles/Answers.h"
#include "doubles/ListScreen.h"

namespace DisplayAPI {

/// The recording search list.
struct SearchListBoxSide::Impl {
    Screen screen;
};

SearchListBoxSide::SearchListBoxSide(SearchList* owner, Panel panel)
    : mImpl(new Impl{{*this, "SearchListBoxPrivate", panel, owner}})
{
}

SearchListBoxSide::~SearchListBoxSide() = default;

SearchListBoxPrivate::SearchListBoxPrivate(SearchList* owner) : SearchListBoxSide(owner, Panel::FULL) {}

SearchListBoxPrivateWP1::SearchListBoxPrivateWP1(SearchList* owner) : SearchListBoxSide(owner, Panel::SMALL) {}

ListScreenSide::Screen& SearchListBoxSide::screen()
{
    return mImpl->screen;
}

void SearchListBoxSide::lostFocus() {}

std::string SearchListBoxSide::serialise()
{
    return ListScreenSide::serialise();
}

std::string SearchListBoxSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return ListScreenSide::serialise(visible);
}

void SearchListBoxSide::addCommandListener(CommandListener* listener)
{
    screen().note("addCommandListener", listener);
}

void SearchListBoxSide::removeCommandListener(CommandListener* listener)
{
    screen().note("removeCommandListener", listener);
}

int SearchListBoxSide::size()
{
    screen().note("size");
    return doubles::Answers::instance().size;
}

void SearchListBoxSide::append(ListItemPrivateIfc* row)
{
    screen().note("append", row);
}

void SearchListBoxSide::clear()
{
    screen().note("clear");
}

int SearchListBoxSide::getSelectedIndex()
{
    screen().note("getSelectedIndex");
    return doubles::Answers::instance().selectedIndex;
}

void SearchListBoxSide::setSelectedIndex(int index)
{
    screen().note("setSelectedIndex", index);
}

void SearchListBoxSide::insertAt(ListItemPrivateIfc* row, int index)
{
    screen().note("insertAt", row, index);
}

void SearchListBoxSide::removeAt(int index, ListItemPrivateIfc* row)
{
    screen().note("removeAt", index, row);
}

void SearchListBoxSide::remove(ListItemPrivateIfc* row)
{
    screen().note("remove", row);
}

void SearchListBoxSide::setTitle(const std::string& title)
{
    screen().note("setTitle", title);
}

void SearchListBoxSide::setTitle(TranslationInfo* title)
{
    screen().note("setTitle", title);
}

void SearchListBoxSide::showSearchPopup()
{
    screen().note("showSearchPopup");
}

void SearchListBoxSide::dismissSearchPopup()
{
    screen().note("dismissSearchPopup");
}

bool SearchListBoxSide::isSearchPopupVisible()
{
    screen().note("isSearchPopupVisible");
    return true;
}

void SearchListBoxSide::setSearchText(std::string text)
{
    screen().note("setSearchText", text);
}

std::string SearchListBoxSide::getSearchText()
{
    screen().note("getSearchText");
    return "Zoë";
}

void SearchListBoxSide::setCountIndicator(int count)
{
    screen().note("setCountIndicator", count);
}

void SearchListBoxSide::setSearchCountIndicator(int count)
{
    screen().note("setSearchCountIndicator", count);
}

void SearchListBoxSide::localeChanged()
{
    screen().note("localeChanged");
}

} // namespace DisplayAPI
