#include "host/variants/list/ListBoxCore.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItemPrivateIfc.h"
#include "DisplayAPI/TickerPrivateIfc.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <algorithm>

namespace DisplayAPI {

namespace {

/// An arrow is understood in every language.
constexpr const char* BACK_ROW_TEXT = "\u2190";

KestrelListBoxItem* itemOf(ListItemPrivateIfc* row)
{
    return row == nullptr ? nullptr : row->getKestrelListItem();
}

/// Null where there is none.
PegThing* tickerOf(const KestrelListBox& box)
{
    PegThing* child = box.First();
    while (child != nullptr && child->Type() != TYPE_TICKER)
        child = child->NextSibling();
    return child;
}

/// Nobody can give back a former ticker that nobody watches.
bool isForgotten(const PegThing& ticker)
{
    const auto* watched = dynamic_cast<const Watched*>(&ticker);
    return watched == nullptr || !watched->isWatched();
}

} // namespace

void ListBoxCore::attach(Back back)
{
    box()->setMessageTarget(this);
    box()->setBackArrow(back == Back::KEY);
    if (back == Back::KEY_AND_ROW) {
        mBackRow = std::make_unique<KestrelListBoxItem>(ICC::fromUTF8toUNICODE(BACK_ROW_TEXT));
        box()->append(mBackRow.get());
    }
}

ListBoxCore::~ListBoxCore()
{
    if (box() != nullptr)
        box()->setMessageTarget(nullptr);
}

int ListBoxCore::Message(const PegMessage& message)
{
    switch (message.wType) {
    case PM_CURRENT_CHANGED: changed(); break;
    case PM_CLICKED: mSelf.postCommand(isOnBackRow() ? List::BACK_COMMAND() : List::SELECT_COMMAND(), mOwner); break;
    case PM_RIGHT:
        if (!isOnBackRow())
            mSelf.postCommand(List::RIGHT_COMMAND(), mOwner);
        break;
    case PM_LEFT:
        if (mGoesBack)
            mSelf.postCommand(List::BACK_COMMAND(), mOwner);
        break;
    case PM_APPLICATION_CHANGED:
        if (message.iData == KestrelApplication::LOCALE)
            lookUp(*static_cast<const PegString*>(message.pData));
        else
            showTitle();
        break;
    default: return PegThing::Message(message);
    }
    return 0;
}

Displayable* ListBoxCore::owner() const
{
    return mOwner;
}

void ListBoxCore::followLanguage()
{
    if (!mApplication)
        mApplication.emplace(*this);
}

bool ListBoxCore::hasTitle() const
{
    return box() != nullptr && !box()->title().empty();
}

template <typename Change>
void ListBoxCore::change(Change apply)
{
    if (box() == nullptr)
        return;
    apply(*box());
    changed();
}

/// A change of rows does not bring the user to the row that goes back; he goes there himself.
template <typename Change>
void ListBoxCore::changeRows(Change apply)
{
    change([&](KestrelListBox& list) {
        const bool wentThere = size() > 0 && isOnBackRow();
        apply(list);
        if (isOnBackRow() && !wentThere)
            list.setCurrentRow(size() - 1);
    });
}

void ListBoxCore::changed()
{
    if (box() != nullptr && box()->StatusIs(PSF_VISIBLE))
        mSelf.generateDisplayChangedEvent();
}

bool ListBoxCore::isOnBackRow() const
{
    return mBackRow != nullptr && box() != nullptr && box()->currentRow() == size();
}

int ListBoxCore::size() const
{
    return box() == nullptr ? 0 : box()->numItems() - (mBackRow != nullptr ? 1 : 0);
}

int ListBoxCore::selectedIndex() const
{
    return box() == nullptr || isOnBackRow() ? -1 : box()->currentRow();
}

void ListBoxCore::select(int index)
{
    if (index < size())
        change([&](KestrelListBox& list) { list.setCurrentRow(index); });
}

void ListBoxCore::select(ListItemPrivateIfc* row)
{
    change([&](KestrelListBox& list) { list.setCurrentRow(list.rowOf(itemOf(row))); });
}

void ListBoxCore::insert(ListItemPrivateIfc* row, int index)
{
    followLanguage();
    changeRows([&](KestrelListBox& list) { list.insert(itemOf(row), std::min(index, size())); });
}

void ListBoxCore::remove(ListItemPrivateIfc* row)
{
    changeRows([&](KestrelListBox& list) { list.remove(itemOf(row)); });
}

void ListBoxCore::clear()
{
    change([&](KestrelListBox& list) {
        list.clear();
        list.append(mBackRow.get());
    });
}

void ListBoxCore::setTitle(TranslatedText title)
{
    if (title.isTranslated())
        followLanguage();
    mTitle = std::move(title);
    showTitle();
}

void ListBoxCore::showTitle()
{
    change([this](KestrelListBox& list) { list.setTitle(mTitle.shown()); });
}

/// Rows and title, also while the list is not on screen. The display is told once, when all of it is done.
void ListBoxCore::lookUp(const PegString& locale)
{
    if (mOwner != nullptr)
        mOwner->localeChanged(ICC::fromUNICODEtoASCII(locale));
    showTitle();
}

void ListBoxCore::setHighlight(bool on)
{
    change([&](KestrelListBox& list) { list.setSelectionHighlight(on); });
}

void ListBoxCore::hide()
{
    if (box() == nullptr || box()->Parent() == nullptr)
        return;
    mOwnership.gainOwnership();
    box()->Parent()->Remove(box());
}

void ListBoxCore::setTicker(TickerPrivateIfc* ticker)
{
    PegThing* const widget = ticker != nullptr ? ticker->getWidget() : nullptr;
    if (box() == nullptr)
        mFormerTickers.Add(widget);
    else if (tickerOf(*box()) != widget)
        change([&](KestrelListBox& list) { showTicker(list, widget); });
    dropForgottenTickers();
}

/// A ticker that stands in another list leaves that one.
void ListBoxCore::showTicker(KestrelListBox& list, PegThing* ticker)
{
    auto* const before = ticker != nullptr ? dynamic_cast<KestrelListBox*>(ticker->Parent()) : nullptr;
    mFormerTickers.Add(tickerOf(list));
    list.Add(ticker);
    list.setTickerShown(ticker != nullptr);
    if (before != nullptr)
        before->setTickerShown(false);
}

void ListBoxCore::dropForgottenTickers()
{
    for (PegThing* former = mFormerTickers.First(); former != nullptr;) {
        PegThing* const next = former->NextSibling();
        if (isForgotten(*former))
            delete former;
        former = next;
    }
}

/// The widget of the full panel draws the status lines itself; null for the other.
KestrelListBoxWithTitle* ListBoxCore::statusBox() const
{
    return dynamic_cast<KestrelListBoxWithTitle*>(box());
}

void ListBoxCore::setSystemLines(int lines)
{
    if (KestrelListBoxWithTitle* list = statusBox())
        list->setSystemWindowLines(lines);
}

void ListBoxCore::setSystemText(int line, const std::string& text)
{
    if (KestrelListBoxWithTitle* list = statusBox())
        list->setSystemWindowText(ICC::fromUTF8toUNICODE(text), line);
}

} // namespace DisplayAPI
