#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "toolkit/PegThing.h"
#include "widgets/ApplicationWatch.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

#include <memory>
#include <optional>
#include <string>

class KestrelListBoxWithTitle;

namespace DisplayAPI {

class List;
class ListItemPrivateIfc;
class PopupDialer;
class TickerPrivateIfc;

/// What the lists of all panels do: rows and title go to the widget, what the user does there becomes commands. It is
/// the widget's message target.
class ListBoxCore : public PegThing {
public:
    /// How the user gets back from a list.
    enum class Back { NONE, KEY, KEY_AND_ROW };

    /// `self` and `owner` outlive the core.
    template <typename Box>
    ListBoxCore(DisplayablePrivate& self, List* owner, std::in_place_type_t<Box> box, Back back)
        : mSelf(self), mOwner(owner), mGoesBack(back != Back::NONE), mBox(box)
    {
        attach(back);
    }
    ~ListBoxCore() override;

    int Message(const PegMessage& message) override;

    KestrelListBox* box() const { return mBox.get(); }
    Displayable* owner() const;
    OwnershipIfc& ownership() { return mOwnership; }

    /// Follows the language from now on. A list that has neither rows nor title nor a place on screen does not: an
    /// exclusive list leaves one behind, which outlives its facade.
    void followLanguage();
    bool hasTitle() const;

    /// Rows, without the one that goes back.
    int size() const;
    int selectedIndex() const;
    void select(int index);
    void select(ListItemPrivateIfc* row);
    void insert(ListItemPrivateIfc* row, int index);
    void remove(ListItemPrivateIfc* row);
    void clear();

    void setTitle(TranslatedText title);
    void setHighlight(bool on);
    void hide();

    /// Whether the list shows status lines itself, above its title. Two lines have no room for that: there the system
    /// window pops up above the list, and setting the list's lines has no effect.
    bool drawsSystemLines() const { return statusBox() != nullptr; }
    void setSystemLines(int lines);
    void setSystemText(int line, const std::string& text);

    /// Tells the display when a list on screen looks different.
    void changed();

    void setTicker(TickerPrivateIfc* ticker);
    void setDialler(PopupDialer* dialler) { mDialler = dialler; }
    void showDialler(bool onInitialKey) { mDiallerOnInitialKey = onInitialKey; }

private:
    void attach(Back back);
    template <typename Change>
    void change(Change apply);
    template <typename Change>
    void changeRows(Change apply);
    bool isOnBackRow() const;
    KestrelListBoxWithTitle* statusBox() const;
    void showTitle();
    void lookUp(const PegString& locale);
    void showTicker(KestrelListBox& list, PegThing* ticker);
    void dropForgottenTickers();

    DisplayablePrivate& mSelf;
    List* mOwner;
    bool mGoesBack;
    WatchedWidget<KestrelListBox> mBox;
    OwnershipDelegate<KestrelListBox> mOwnership{mBox.slot(), true};
    std::unique_ptr<KestrelListBoxItem> mBackRow; ///< null where there is none
    TranslatedText mTitle;
    std::optional<ApplicationWatch> mApplication;
    PegThing mFormerTickers; ///< holds them, never on screen: those with a facade may be changed and come back

    // Kept for the parts of a list that are still to be shown.
    PopupDialer* mDialler = nullptr;
    bool mDiallerOnInitialKey = false;
};

} // namespace DisplayAPI
