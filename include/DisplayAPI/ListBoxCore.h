#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "toolkit/PegThing.h"
#include "widgets/ApplicationWatch.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace DisplayAPI {

class Command;
class Displayable;
class ListItemPrivateIfc;

/// What lists and menus of every kind have in common: a toolkit list box with its rows and its title, and the commands
/// that become of what the user does there. It is the box's message target, and holds the box until that dies. GUI
/// thread only.
class DISPLAYAPI_EXPORT ListBoxCore : public PegThing {
public:
    /// What the keys raise: a function that returns the command, such as List::SELECT_COMMAND; null raises nothing.
    struct Commands {
        using Accessor = Command* (*)();
        Accessor select = nullptr;
        Accessor right = nullptr;
        Accessor back = nullptr; ///< the left key, and the row that goes back
    };

    /// How the user gets back: by no key, by the left one, or as well by a last row, which counts as none.
    enum class Back { NONE, KEY, KEY_AND_ROW };

    using LocaleChanged = std::function<void(const std::string& locale)>;

    /// `self` and `owner`, its facade, outlive the core; the commands are raised for the owner, which may be null.
    /// `localeChanged` passes a new locale on to the rows; it may be empty. The box belongs to the core.
    ListBoxCore(DisplayablePrivate& self, Displayable* owner, WatchedWidget<KestrelListBox> box, Back back,
                const Commands& commands, LocaleChanged localeChanged);
    ~ListBoxCore() override;

    int Message(const PegMessage& message) override;

    /// Told of digits, star and hash that the current row has no use for. Replaces the one before.
    void setTyped(std::function<void(int key)> typed) { mTyped = std::move(typed); }

    /// Null when it has died: the presentation manager owns it while it is on screen.
    KestrelListBox* box() const { return mBox.get(); }
    OwnershipIfc& ownership() { return mOwnership; }
    Displayable* owner() const { return mOwner; }

    /// Follows the language from now on. A list that has neither rows nor title nor a place on screen does not: an
    /// exclusive list leaves one behind, which outlives its facade.
    void followLanguage();

    /// Rows, without the one that goes back.
    int size() const;

    /// -1 where no row is selected, or the one that goes back.
    int selectedIndex() const;

    /// Rows that are not there are ignored.
    void select(int index);
    void select(ListItemPrivateIfc* row);

    /// A negative index inserts at the front, one past the end appends. Rows are not owned.
    void insert(ListItemPrivateIfc* row, int index);
    void insert(KestrelListBoxItem* item, int index);
    void remove(ListItemPrivateIfc* row);
    void clear();

    void setTitle(TranslatedText title);

    /// Looks a translated title up anew, and tells the display; nothing while the core follows the language itself,
    /// which does both afterwards.
    void localeChanged();
    bool hasTitle() const;

    /// Applies a change to the box, where there is one, and tells the display.
    template <typename Change>
    void change(Change apply)
    {
        if (box() == nullptr)
            return;
        apply(*box());
        changed();
    }

    /// Tells the display when a list on screen looks different.
    void changed();

protected:
    /// Null raises nothing.
    void raise(Commands::Accessor command);

private:
    template <typename Change>
    void changeRows(Change apply);
    void typed(int key);
    bool isOnBackRow() const;
    void applicationChanged(const PegMessage& message);
    void rowChanged();
    void showTitle();

    DisplayablePrivate& mSelf;
    Displayable* mOwner;
    Commands mCommands;
    LocaleChanged mLocaleChanged;
    WatchedWidget<KestrelListBox> mBox;
    OwnershipDelegate<KestrelListBox> mOwnership{mBox.slot(), true};
    std::unique_ptr<KestrelListBoxItem> mBackRow; ///< null where there is none
    TranslatedText mTitle;
    std::optional<ApplicationWatch> mApplication;
    bool mChangesLanguage = false;       ///< rows change one by one; the display is told when all have
    std::function<void(int key)> mTyped; ///< empty is nobody
};

} // namespace DisplayAPI
