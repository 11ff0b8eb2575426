#pragma once

#include "DisplayAPI/ListItem.h"

class CallPartyIdentifier;

namespace DisplayAPI {

class Image;

/// A row of a list with a box before its text, which is checked or not. Choosing it raises the list's command: whoever
/// hears that checks or unchecks the box.
///
/// Threads: safe from any thread. Off the GUI thread everything waits but setText(), which posts, without effect as for
/// every row. A request that nobody knows is completed without effect.
/// Ownership: as for ListItem. A translation is not owned and has to outlive the row; null is an empty text. Images
/// are not owned, and not shown.
class DISPLAYAPI_EXPORT CheckBoxItem : public ListItem {
public:
    /// Where the row stands in a tree of branches, for setPartyDetails(), which has no use for it.
    enum eCheckBoxBranchLine : int { BRANCH_NONE = 0, BRANCH_MIDDLE = 1, BRANCH_LAST = 2 };

    /// The flags have no effect. Not checked at first.
    CheckBoxItem(TranslationInfo* text, Image* image, bool first, bool second);
    CheckBoxItem(std::string text, Image* image, bool first, bool second);
    CheckBoxItem(const CheckBoxItem&) = delete;
    CheckBoxItem& operator=(const CheckBoxItem&) = delete;
    ~CheckBoxItem() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    bool isChecked();
    void swapChecked();
    void setChecked(bool on);

    /// A row shows no party, and checks nothing by itself: these do nothing, and there is no party.
    void setPartyDetails(CallPartyIdentifier* party, TranslationInfo* text, eCheckBoxBranchLine line);
    CallPartyIdentifier* getPartyDetails();
    void setCheckedPassive(bool on);
    void setAutoCheck(bool on);

private:
    struct Ops;

    void create(const std::string& text);
    void createTranslated(TranslationInfo* text, Image* image);
    void take(ListItemPrivateIfc* row);
};

} // namespace DisplayAPI
