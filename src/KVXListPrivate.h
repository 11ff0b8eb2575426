#pragma once

#include "DisplayAPI/DisplayablePrivate.h"
#include "DisplayAPI/KVXListPrivateIfc.h"
#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TickerPlace.h"
#include "DisplayAPI/WatchedWidget.h"
#include "toolkit/PegThing.h"
#include "widgets/KestrelListBoxWithTitle.h"

#include <map>

namespace DisplayAPI {

/// A KVX list on the toolkit's list with title, whose status lines are the display lines. It is the list's message
/// target and follows the application's language. GUI thread only.
class KVXListPrivate : public PegThing, public DisplayablePrivate, public KVXListPrivateIfc {
public:
    /// `owner` is the facade, not owned; its listeners are told of the commands, its rows of a new language.
    explicit KVXListPrivate(Displayable* owner);
    ~KVXListPrivate() override;

    int Message(const PegMessage& message) override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void show() override;
    void lostFocus() override;

    /// The second form without what nobody sees.
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;

    void addCommandListener(CommandListener* listener) override;
    void removeCommandListener(CommandListener* listener) override;
    void join(DisplayablePrivate* other) override;
    void disjoin() override;
    bool hasCaption() override;
    void setSysWindowSize(int lines) override;
    void setSysWindowText(std::string text, int line) override;
    bool hasSystemWindow() override;

    int size() override;
    void append(ListItemPrivateIfc* row) override;
    void clear() override;
    int getSelectedIndex() override;
    void setSelectedIndex(int index) override;
    void setSelected(ListItemPrivateIfc* row) override;
    void insertAt(ListItemPrivateIfc* row, int index) override;
    void removeAt(int index, ListItemPrivateIfc* row) override;
    void remove(ListItemPrivateIfc* row) override;
    void setTicker(TickerPrivateIfc* ticker) override;
    void setTitle(const std::string& title) override;
    void setTitle(TranslationInfo* title) override;
    void setSystemWindowSize(int lines) override;
    void setSystemWindowText(int line, const std::string& text) override;
    Displayable* getParent() const override;
    void hide() override;
    void setSelectionHighlight(bool on) override;

    /// KVX screens have no dialer: these do nothing.
    void showDiallerOnInitialKeyEvent(bool on) override;
    void setDialler(PopupDialer* dialler) override;
    void dismissDialler() override;

    void numtitlelines(unsigned int lines) override;
    void titlecolour(int colour) override;
    void titletext(unsigned int line, const std::string& text) override;
    void titletext(unsigned int line, TranslationInfo* text) override;
    void cleartitle() override;
    bool selectionchanged() const override;

    void localeChanged(const std::string& locale);

    /// Does nothing: the list tells nobody but the display and its listeners.
    void notifyOne();

private:
    void currentChanged(int row);
    void clicked(int row);
    void leftEvent();
    void rightEvent(int row);
    void keepTitleText(unsigned int line, TranslationInfo* text);
    void showTitleText(unsigned int line, const std::string& text);
    bool showsSystemWindowText() const;
    template <typename Change>
    void change(Change apply);

    std::map<unsigned int, TranslationInfo*> mTitleTexts; ///< owned
    WatchedWidget<KestrelListBoxWithTitle> mWidget{std::in_place_type<KestrelListBoxWithTitle>};
    Displayable* mOwner;
    mutable bool mSelectionChanged = false;
    [[maybe_unused]] void* mWord = nullptr;
    TranslationInfo* mTitle = nullptr; ///< shown anew when the language changes; no operation sets it
    OwnershipDelegate<KestrelListBoxWithTitle> mOwnership{mWidget.slot(), true};
    int mTitleLines = 0; ///< as many as the display lines want; another screen on top takes them off
    TickerPlace mTickers;
};

} // namespace DisplayAPI
