#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "toolkit/PString.h"
#include "toolkit/PegRect.h"

#include <atomic>
#include <vector>

class TranslatorIfc;

namespace DisplayAPI {

class Command;
class CommandListener;
class Displayable;

/// What the private sides of all displayables have in common: the display they are attached to and the listeners of
/// their commands. GUI thread only.
class DISPLAYAPI_EXPORT DisplayablePrivate : public virtual DisplayablePrivateIfc {
public:
    DisplayablePrivate();
    DisplayablePrivate(const DisplayablePrivate&) = delete;
    DisplayablePrivate& operator=(const DisplayablePrivate&) = delete;

    bool hideOldWidgetOnFocusGained() override;
    int widgetPosition() override;
    void connectDisplayChangedSignal(DisplayPrivateIfc* display) override;
    std::string serialise() override;
    std::string serialise(const std::vector<DisplayAPIUtils::Rect>& visible) override;
    void widgetDismissed(DisplayablePrivate* dismissed) override;
    void enable(bool on) override;

    virtual ~DisplayablePrivate();

    /// Adds a listener once; null and a listener that is already there are ignored. Not owned.
    virtual void addCommandListener(CommandListener* listener);

    /// Ignored where it is not there.
    virtual void removeCommandListener(CommandListener* listener);

    /// Takes over the display that `other` is attached to; null is ignored.
    virtual void join(DisplayablePrivate* other);

    /// Forgets the display.
    virtual void disjoin();

    /// Whether it shows a title; false here.
    virtual bool hasCaption();

    /// The status lines, for displayables that draw them themselves; here without effect. The text is UTF-8.
    virtual void setSysWindowSize(int lines);
    virtual void setSysWindowText(std::string text, int line);

    /// Whether it draws them itself; false here.
    virtual bool hasSystemWindow();

    /// Queues a notification of `command` for every listener, in order, and returns at once.
    void postCommand(Command* command, Displayable* displayable);

    /// Tells the attached display, where there is one, that what is shown has changed.
    void generateDisplayChangedEvent();

    /// Translates the texts that belong to no displayable in particular. Not owned; null until a display is given one.
    static std::atomic<TranslatorIfc*> commonTranslator;

protected:
    /// The display that it is attached to; null where there is none, or none any more.
    DisplayPrivateIfc* display() const;

private:
    DisplayPrivateIfc* mDisplay = nullptr; ///< may be gone: ask display()
    std::vector<CommandListener*> mCommandListeners;
    [[maybe_unused]] PegRect mRect{-1, -1, -1, -1};
    [[maybe_unused]] unsigned int mWord = 0;
    PegString mText;
};

} // namespace DisplayAPI
