#pragma once

#include "DisplayAPI/SearchList.h"
#include "host/variants/list/ListScreen.h"
#include "host/widgets/list/SearchStrip.h"
#include "variants/list/SearchListBoxPrivate.h"

namespace DisplayAPI {

/// A search list's data, and what hears its edit line. The strip stands in the box while it is shown, and else is kept
/// here: it goes with a box that dies.
struct SearchListBoxSide::Impl : public PegThing {
    Impl(SearchListBoxSide& side, SearchList* facade, Panel panel);
    ~Impl() override;

    int Message(const PegMessage& message) override;

    bool isSearching() const { return strip != nullptr && strip->Parent() != &parked; }
    void showPopup();
    void dismissPopup();
    void setText(const std::string& newText);

    /// Puts one of the numbers, and shows both.
    void setCount(int Impl::*which, int count);

    /// A key that is held is somebody else's from now on.
    void letGo();

    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const;

    SearchList* const owner;
    ListBoxCore core;
    Screen screen{core};
    PegThing parked; ///< never on the screen
    WatchedWidget<host::SearchStrip> strip{std::in_place_type<host::SearchStrip>};
    PegString text; ///< outlives the strip
    int total = -1;
    int matches = -1;

private:
    bool take(const PegMessage& message);
    bool takeKey(int key);
    void openWith(int key);
    void userHasEdited();
    void place(bool inBox);
    void showCounts();
    PegString counts() const;
};

} // namespace DisplayAPI
