#pragma once

#include "host/widgets/idle/IdleClock.h"
#include "host/widgets/idle/IdleLayout.h"
#include "host/widgets/menu/CommandColumn.h"
#include "host/widgets/popup/PopupBox.h"

#include <memory>

namespace host {

/// The screen of a telephone that nobody uses, as large as the panel, with a menu of commands that OK and down open and
/// left closes. Messages change every few seconds while they can be seen.
/// Tells its target PM_CLICKED with a command's number, PM_KEY for keys that it has no use for, and PM_CURRENT_CHANGED
/// when something else is shown. At rest nothing is painted but the clock.
class IdleScreen : public PegWindow {
public:
    IdleScreen();
    ~IdleScreen() override;

    void setContents(IdleContents contents);
    void setLogo(std::string path);

    /// The last in turn; what is on screen stays.
    void addMessage(PegString message);
    void clearMessages();

    void setStatusLines(int lines);
    void setStatusText(int line, std::string text);

    void addCommand(PegString text);
    void setCommandText(int command, PegString text);
    void clearCommands();

    /// The one that is current when the menu opens; one that does not exist is the first.
    void setDefaultCommand(int command) { mDefaultCommand = command; }

    bool isMenuOpen() const { return mMenu.Parent() != nullptr; }
    void closeMenu();
    const CommandColumn& commands() const { return *mColumn; }

    /// What is in sight; with the menu open the bar alone, where there is room for both.
    std::vector<IdlePart> parts() const;

    /// The formats have changed.
    void renewClock() { ticked(); }

    /// Not owned; null is nobody.
    void setMessageTarget(PegThing* target) { mTarget = target; }

    int Message(const PegMessage& message) override;
    void Draw(PegPainter& painter) override;
    void Resize(const PegRect& area) override;

protected:
    void VisibilityChanged() override;

private:
    struct MenuEar : PegThing {
        explicit MenuEar(IdleScreen& owner) : screen(owner) {}
        int Message(const PegMessage& message) override { return screen.menuTells(message), 0; }
        IdleScreen& screen;
    };

    IdleState state() const;
    void key(int key);
    void openMenu();
    void menuTells(const PegMessage& message);
    void tell(std::uint16_t type, int data);
    void changed();
    void ticked();
    void nextMessage();
    void keepMessage(std::size_t turnsBefore);
    void scheduleTurns();
    void invalidate(IdleKind kind);
    static void drawPart(PegPainter& painter, const IdlePart& part);

    IdleContents mContents;
    StatusLines mLines;
    Logo mLogo;
    std::vector<PegString> mMessages;
    std::size_t mTurn = 0;
    bool mTakesTurns = false; ///< whether the timer runs
    IdleClock mClock;
    PegString mDate; ///< as it is shown
    PegString mTime;
    MenuEar mEar;
    PopupBox mMenu;
    CommandColumn* mColumn; ///< the menu's
    int mDefaultCommand = 0;
    PegThing* mTarget = nullptr;
};

} // namespace host
