#pragma once

#include "host/widgets/desktop/DesktopClock.h"
#include "host/widgets/desktop/DesktopLook.h"
#include "host/widgets/desktop/Screensaver.h"
#include "toolkit/PegWindow.h"

#include <array>
#include <list>
#include <string>

namespace host {

/// Who hears a desktop. Each may delete it, but for desktopWoken().
class DesktopListener {
public:
    /// A key that the desktop has no use for itself; of the programmable ones only those that are enabled.
    virtual void desktopKey(int key) = 0;
    virtual void desktopChanged() = 0;
    virtual void desktopHidden() = 0;

    /// A key ends the screensaver.
    virtual void desktopWoken() = 0;

protected:
    ~DesktopListener() = default;
};

/// A screen with a status bar, texts, the labels of programmable keys, and a screensaver. Setters that change nothing
/// paint nothing. GUI thread only.
class DesktopWidget : public PegWindow {
public:
    /// The area is a panel's; the keys are counted from PK_FPK1.
    DesktopWidget(const PegRect& area, int keys);

    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;

    /// Not owned; null is nobody.
    void setListener(DesktopListener* listener) { mListener = listener; }

    const DesktopState& state() const { return mState; }
    DesktopParts parts() const { return desktopParts(Area(), static_cast<int>(mState.keys.size())); }

    void setMode(PegString mode, PegString detail);
    void setIcon(DesktopIcon icon, bool on);
    void setPostTimeIcon(int icon);
    void setExtension(PegString text);
    void setArrow(bool on);
    void setLogo(PegString text);

    /// Changes the clock. `change` is given it.
    template <typename Change>
    void setClock(Change change)
    {
        change(mClock);
        clockChanged();
    }

    /// From Monday on.
    using DayNames = std::array<std::string, 7>;
    void setDayNames(DayNames names);

    /// The language or a format.
    void applicationChanged();

    // REQUIRES: there is such a key.
    void setLabel(int key, bool isShifted, KeyLabel label);
    void setLit(int key, bool on);
    void setShifted(bool on);

    /// Over everything, until a key is pressed.
    void startScreensaver();
    void stopScreensaver();
    bool hasScreensaver() const { return mScreensaver.isOn(); }
    void setPictures(const std::list<std::string>& paths);

protected:
    void VisibilityChanged() override;

private:
    template <typename Field>
    bool set(Field& field, Field value, const PegRect& part);
    template <typename Field>
    void change(Field& field, Field value, const PegRect& part);
    void key(int key);
    void wake();
    void timer(int id);
    bool readClock();
    void clockChanged();
    void scheduleClock();
    void schedule();
    void screensaverChanged();
    void tellChanged();

    DesktopState mState;
    DesktopClock mClock;
    DayNames mDayNames;
    Screensaver mScreensaver;
    DesktopListener* mListener = nullptr;
};

} // namespace host
