#include "DisplayAPI/ListBoxCore.h"

#include "DisplayAPI/ListItemPrivateIfc.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

#include <algorithm>
#include <utility>

namespace DisplayAPI {

namespace {

KestrelListBoxItem* itemOf(ListItemPrivateIfc* row)
{
    return row == nullptr ? nullptr : row->getKestrelListItem();
}

} // namespace

ListBoxCore::ListBoxCore(DisplayablePrivate& self, Displayable* owner, WatchedWidget<KestrelListBox> box, Back back,
                         const Commands& commands, LocaleChanged localeChanged)
    : mSelf(self), mOwner(owner), mCommands(commands), mLocaleChanged(std::move(localeChanged)), mBox(std::move(box))
{
    mBox->setMessageTarget(this);
    mBox->setTellsLeft(back != Back::NONE);
    mBox->setBackArrow(back == Back::KEY);
    if (back == Back::KEY_AND_ROW) {
        mBackRow = std::make_unique<KestrelListBoxItem>(KestrelListBoxItem::wayBackText());
        mBox->append(mBackRow.get());
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
    case PM_ROW_CHANGED: rowChanged(); break;
    case PM_CLICKED: raise(isOnBackRow() ? mCommands.back : mCommands.select); break;
    case PM_RIGHT: raise(isOnBackRow() ? nullptr : mCommands.right); break;
    case PM_LEFT: raise(mCommands.back); break;
    case PM_KEY: typed(message.iData); break;
    case PM_APPLICATION_CHANGED: applicationChanged(message); break;
    default: return PegThing::Message(message);
    }
    return 0;
}

void ListBoxCore::raise(Commands::Accessor command)
{
    if (command != nullptr)
        mSelf.postCommand(command(), mOwner);
}

void ListBoxCore::typed(int key)
{
    if (mTyped)
        mTyped(key);
}

/// Rows and title, also while the list is not on screen. The display is told once, when all of it is done.
void ListBoxCore::applicationChanged(const PegMessage& message)
{
    const auto& locale = *static_cast<const PegString*>(message.pData);
    if (message.iData == KestrelApplication::LOCALE && mLocaleChanged) {
        mChangesLanguage = true;
        mLocaleChanged(ICC::fromUNICODEtoASCII(locale));
        mChangesLanguage = false;
    }
    showTitle();
}

/// Not while the rows are walked: whoever is told may remove some.
void ListBoxCore::rowChanged()
{
    if (!mChangesLanguage)
        changed();
}

void ListBoxCore::followLanguage()
{
    if (!mApplication)
        mApplication.emplace(*this);
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
        change([=](KestrelListBox& list) { list.setCurrentRow(index); });
}

void ListBoxCore::select(ListItemPrivateIfc* row)
{
    change([=](KestrelListBox& list) { list.setCurrentRow(list.rowOf(itemOf(row))); });
}

void ListBoxCore::insert(ListItemPrivateIfc* row, int index)
{
    insert(itemOf(row), index);
}

void ListBoxCore::insert(KestrelListBoxItem* item, int index)
{
    followLanguage();
    changeRows([&](KestrelListBox& list) { list.insert(item, std::min(index, size())); });
}

void ListBoxCore::remove(ListItemPrivateIfc* row)
{
    changeRows([=](KestrelListBox& list) { list.remove(itemOf(row)); });
}

void ListBoxCore::clear()
{
    change([this](KestrelListBox& list) {
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

void ListBoxCore::localeChanged()
{
    if (!mChangesLanguage)
        showTitle();
}

void ListBoxCore::showTitle()
{
    change([this](KestrelListBox& list) { list.setTitle(mTitle.shown()); });
}

bool ListBoxCore::hasTitle() const
{
    return box() != nullptr && !box()->title().empty();
}

} // namespace DisplayAPI
