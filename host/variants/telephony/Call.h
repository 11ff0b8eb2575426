#pragma once

#include "DisplayAPI/ContextMenu.h"
#include "host/variants/popup/TextLine.h"
#include "host/variants/telephony/CallDuration.h"
#include "host/widgets/telephony/LinesRow.h"
#include "variants/Panel.h"
#include "variants/telephony/CallConnectedItemPrivate.h"

#include <memory>
#include <string>
#include <vector>

namespace DisplayAPI {

/// What a call's row is made of.
struct CallConnectedItemSide::Call {
    /// A conference that the call is a member of.
    class Whole {
    public:
        virtual void memberChanged() = 0;

        /// It leaves; it is told nothing more.
        virtual void leave(Call& member) = 0;

    protected:
        ~Whole() = default;
    };

    /// The row of the list, whose keys are the call's first.
    class Row : public host::LinesRow {
    public:
        Row(std::string name, Call& call) : LinesRow(std::move(name)), mCall(call) {}
        bool key(int key) override { return mCall.key(key); }

    private:
        Call& mCall;
    };

    /// `name` is the row's in the screen as text. The row shows nothing until something has changed().
    Call(std::string name, OwnedText text, bool timed, bool withMenu, Panel where);
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    virtual ~Call();

    virtual host::LinesLook look() const;
    virtual bool key(int key);

    /// Shows it as it is now.
    void changed();

    /// Shows its texts in the language of now.
    virtual void localeChanged() { changed(); }

    void setState(CallConnectedItem::CallStateIcon newState);

    /// A fourth line is ignored.
    void addMore(OwnedText text);
    bool isSmall() const { return panel == Panel::SMALL; }

    /// Null where it has none. Made when somebody asks for it first.
    ContextMenu* menu();

    /// False where nobody has put anything into it.
    bool openMenu();

    const Panel panel;
    const bool isTimed, hasMenu;
    CallConnectedItem::CallStateIcon state = CallConnectedItem::IDLE;
    OwnedText who;
    TextLine second, third;
    std::vector<OwnedText> more; ///< at most three
    OwnedText id;
    CallConnectedItem::CallSecurityState security = CallConnectedItem::SECURITY_UNKNOWN;
    bool isRecorded = false, isHd = false, isEnabled = true;
    Whole* whole = nullptr;
    Row row;
    CallDuration duration;

protected:
    virtual PegString firstLine() const { return who.shown(); }
    virtual const host::Icon* arrow() const;

private:
    std::vector<const host::Icon*> marks() const;

    std::unique_ptr<ContextMenu> mMenu;
};

} // namespace DisplayAPI
