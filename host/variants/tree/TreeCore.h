#pragma once

#include "DisplayAPI/ListBoxCore.h"
#include "variants/Panel.h"

class Peg_TreeListItem;

namespace DisplayAPI {

/// The list box of a tree: what its keys do to the rows that open and close. GUI thread only.
class TreeCore : public ListBoxCore {
public:
    /// `highlightChanged` is raised when the user has gone to another row; null raises nothing.
    TreeCore(DisplayablePrivate& self, Displayable* owner, Panel panel, Back back, Commands::Accessor highlightChanged,
             LocaleChanged localeChanged);

    int Message(const PegMessage& message) override;

    /// The current row; null where there is none, or where it is the one that leads out of the tree.
    Peg_TreeListItem* current() const;

    /// What stands above the row is opened, too; `all`: what stands below it as well.
    void open(Peg_TreeListItem& item, bool all);
    void close(Peg_TreeListItem& item);

    /// Everything from that level on; 0 is on top.
    void closeFrom(int level);

    /// Whether right does what OK does.
    void setRightEqualsOK(bool on) { mRightEqualsOK = on; }

private:
    bool choose();
    bool goDeeper();
    bool goBack();
    void leave(Peg_TreeListItem& item);
    void goTo(const Peg_TreeListItem& item);

    Commands::Accessor mHighlightChanged;
    bool mRightEqualsOK = false;
};

} // namespace DisplayAPI
