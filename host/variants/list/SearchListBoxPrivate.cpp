#include "variants/list/SearchListBoxPrivate.h"

#include "DisplayAPI/Rectangles.h"
#include "host/variants/list/SearchListImpl.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

SearchListBoxSide::SearchListBoxSide(SearchList* owner, Panel panel)
    : mImpl(std::make_unique<Impl>(*this, owner, panel))
{
}

SearchListBoxSide::~SearchListBoxSide() = default;

SearchListBoxPrivate::SearchListBoxPrivate(SearchList* owner) : SearchListBoxSide(owner, Panel::FULL) {}

SearchListBoxPrivateWP1::SearchListBoxPrivateWP1(SearchList* owner) : SearchListBoxSide(owner, Panel::SMALL) {}

ListScreenSide::Screen& SearchListBoxSide::screen()
{
    return mImpl->screen;
}

void SearchListBoxSide::lostFocus()
{
    mImpl->letGo();
}

std::string SearchListBoxSide::serialise()
{
    const PegThing* const box = getWidget();
    return box != nullptr ? serialise({toRect(box->Area())}) : std::string();
}

std::string SearchListBoxSide::serialise(const std::vector<DisplayAPIUtils::Rect>& visible)
{
    return mImpl->asText(visible);
}

void SearchListBoxSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void SearchListBoxSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

int SearchListBoxSide::size()
{
    return mImpl->core.size();
}

void SearchListBoxSide::append(ListItemPrivateIfc* row)
{
    insertAt(row, size());
}

void SearchListBoxSide::clear()
{
    mImpl->core.clear();
}

int SearchListBoxSide::getSelectedIndex()
{
    return mImpl->core.selectedIndex();
}

void SearchListBoxSide::setSelectedIndex(int index)
{
    mImpl->core.select(index);
}

void SearchListBoxSide::insertAt(ListItemPrivateIfc* row, int index)
{
    mImpl->core.insert(row, index);
}

void SearchListBoxSide::removeAt(int, ListItemPrivateIfc* row)
{
    remove(row);
}

void SearchListBoxSide::remove(ListItemPrivateIfc* row)
{
    mImpl->core.remove(row);
}

void SearchListBoxSide::setTitle(const std::string& title)
{
    mImpl->core.setTitle(TranslatedText(title));
}

void SearchListBoxSide::setTitle(TranslationInfo* title)
{
    mImpl->core.setTitle(TranslatedText(title));
}

void SearchListBoxSide::showSearchPopup()
{
    mImpl->showPopup();
}

void SearchListBoxSide::dismissSearchPopup()
{
    mImpl->dismissPopup();
}

bool SearchListBoxSide::isSearchPopupVisible()
{
    return mImpl->isSearching();
}

void SearchListBoxSide::setSearchText(std::string text)
{
    mImpl->setText(text);
}

std::string SearchListBoxSide::getSearchText()
{
    return ICC::fromUNICODEtoUTF8(mImpl->text);
}

void SearchListBoxSide::setCountIndicator(int count)
{
    mImpl->setCount(&Impl::total, count);
}

void SearchListBoxSide::setSearchCountIndicator(int count)
{
    mImpl->setCount(&Impl::matches, count);
}

void SearchListBoxSide::localeChanged()
{
    mImpl->core.localeChanged();
}

} // namespace DisplayAPI
