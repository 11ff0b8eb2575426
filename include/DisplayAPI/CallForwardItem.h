#pragma once

#include "DisplayAPI/CallLogMainItem.h"

namespace DisplayAPI {

/// A row that shows where calls are forwarded to: a check mark, an icon, a main text, and lines for the branches, such
/// as one for calls from outside and one for those from inside.
///
/// Threads: safe from any thread. Off the GUI thread the constructors, the destructor, getCheck(), getText() and
/// iconType() wait; everything else posts and returns at once. A request that nobody knows is completed without effect.
/// Its requests have the codes of the list item's: ListItem::setText() posts one that looks the translations up again.
/// Ownership: as for ListItem. Translations are not owned and have to outlive the row; null is an empty text.
class DISPLAYAPI_EXPORT CallForwardItem : public ListItem {
public:
    /// Which branch; any value travels through, and the lines stand in the order of their values.
    enum eCallForwardBranchLine : int { // NOLINT(readability-identifier-naming)
        BRANCH_LINE_1 = 0,
        BRANCH_LINE_2 = 1,
        BRANCH_LINE_3 = 2
    };

    // Texts are UTF-8.

    /// A row that is read-only begins as setReadonly(true, true) makes it.
    CallForwardItem(CallLogMainItem::IconType icon, std::string text, bool isChecked, bool isReadonly);
    CallForwardItem(CallLogMainItem::IconType icon, TranslationInfo* text, bool isChecked, bool isReadonly);

    /// A row that has no icon, is not checked and can be changed.
    explicit CallForwardItem(TranslationInfo* text);
    CallForwardItem(const CallForwardItem&) = delete;
    CallForwardItem& operator=(const CallForwardItem&) = delete;
    ~CallForwardItem() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// What getPrivateImplemetation() answers. GUI thread only.
    ListItemPrivateIfc* getPrivateImpl();

    void check();
    void uncheck();
    void swapCheck();

    /// False where there is no GUI-thread side.
    bool getCheck();

    void setTextMain(TranslationInfo* text);
    void setTextMain(const std::string& text);

    /// A branch's label, and behind it where its calls go. One with neither takes no room.
    void setTextBranch(TranslationInfo* text, TranslationInfo* label, eCallForwardBranchLine line);
    void setTextBranch(const std::string& text, TranslationInfo* label, eCallForwardBranchLine line);

    /// A read-only row is grey, and has its check mark only where `showsMark` says so. It can still be checked by the
    /// application.
    void setReadonly(bool on, bool showsMark);

    /// Whether the icon is shown; it is at first.
    void setCFIconVisible(bool on);

    /// Takes all branches away.
    void cleanBranches();

    /// The main text; empty where there is no GUI-thread side.
    std::string getText();

    /// Looks the translations up again. A list's rows are told by the list.
    void localeChanged(std::string locale);

    /// The icon where it is a forwarding's, shown or not; NO_ICON for others.
    CallLogMainItem::IconType iconType() const;

private:
    struct Ops;

    void create(CallLogMainItem::IconType icon, std::string text, bool isChecked, bool isReadonly);
    void create(CallLogMainItem::IconType icon, TranslationInfo* text, bool isChecked, bool isReadonly);
    void create(TranslationInfo* text);
    template <typename... Args>
    void createRow(Args... args);
};

} // namespace DisplayAPI
