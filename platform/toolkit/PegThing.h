#pragma once

#include "toolkit/PegMessage.h"
#include "toolkit/PegRect.h"

#include <cstdint>

class PegMessageQueue;
class PegPainter;
class PegScreen;

/// What a thing is, where somebody needs to know.
enum PegType : std::uint8_t {
    TYPE_THING = 0,
    TYPE_WINDOW = 1,
    TYPE_PRESENTATION_MANAGER = 2,
    TYPE_LIST_WITH_TITLE = 204,
    TYPE_LIST_WP1 = 206, ///< wants to be told when the focus moves
    TYPE_SYSTEM_WINDOW = 207,
    TYPE_STATUS_MESSAGE = 208,
    TYPE_TICKER = 209
};

/// Where a window lies in relation to the others, kept for the presentation manager.
enum PegLayer : std::uint8_t { LAYER_NORMAL = 0, LAYER_SYSTEM_WINDOW = 64, LAYER_RESTORED = 65 };

enum PegStatus : std::uint16_t {
    PSF_VISIBLE = 1, ///< reachable from the presentation manager
    PSF_CURRENT = 2  ///< has the focus, or a descendant has it
};

enum PegStyle : std::uint16_t {
    FF_NONE = 1,       ///< no frame
    FF_BEHIND = 0x4000 ///< a background: never takes the focus
};

/// Base of everything that can stand on the screen or receive messages: a node of the widget tree.
///
/// GUI thread only, the constructors and destructor included.
/// Ownership: a parent deletes the children that it still has when it is deleted.
class PegThing {
public:
    explicit PegThing(std::uint16_t id = 0, std::uint16_t style = 0);
    PegThing(const PegThing&) = delete;
    PegThing& operator=(const PegThing&) = delete;

    /// Leaves nothing behind: takes the thing out of its parent, the focus, its timers, and drops queued messages that
    /// are addressed to it. Requests lose their target and stay: the library completes them.
    virtual ~PegThing();

    /// Handles one message. The default hands keys to the parent and ignores everything else. Returns 0.
    virtual int Message(const PegMessage& message);

    /// Paints the thing itself, not its children. The painter is clipped to what has to be painted again.
    virtual void Draw(PegPainter& painter);

    /// Sets the area in screen coordinates.
    virtual void Resize(const PegRect& area);

    /// Puts `child` on top of the other children; it becomes this thing's property. A child that already has a parent
    /// is taken out of that one first. Null is ignored.
    void Add(PegThing* child, bool redraw = true);

    /// Takes `child` out without deleting it; the caller owns it again. Ignored where `child` is not a child.
    void Remove(PegThing* child, bool redraw = true);

    PegThing* Parent() const { return mParent; }
    PegThing* First() const { return mFirst; }      ///< the bottom child
    PegThing* NextSibling() const { return mNext; } ///< the one above, towards the top

    std::uint16_t Id() const { return mId; }
    std::uint8_t Type() const { return mType; }
    const PegRect& Area() const { return mArea; }

    std::uint16_t Style() const { return mStyle; }
    void Style(std::uint16_t style) { mStyle = style; }
    bool StatusIs(std::uint16_t bits) const { return (mStatus & bits) == bits; }
    std::uint8_t Layer() const { return mLayer; }
    void Layer(std::uint8_t layer) { mLayer = layer; }

    /// Asks for the thing's area (or the given part of it) to be painted again; nothing where it is not visible.
    void Invalidate();
    void Invalidate(const PegRect& part);

    /// Sends PM_TIMER with `id` after `ms` milliseconds, and every `ms` again if `repeat`. Restarts a running one.
    void SetTimer(std::int32_t id, int ms, bool repeat);
    void KillTimer(std::int32_t id);

    /// Shared by all things; null while the toolkit is not running.
    static PegScreen* mpScreen;
    static PegMessageQueue* mpMessageQueue;

protected:
    void Type(std::uint8_t type) { mType = type; }

    /// Called when the thing has become visible, or has stopped being so, together with the whole tree above it.
    virtual void VisibilityChanged();

    /// Called when `child` has been taken out, by whomever. It may be in its destructor.
    virtual void ChildRemoved(PegThing* child);

private:
    friend class PRESCPresentationManager;

    void setStatus(std::uint16_t bits, bool on);
    void setTreeVisible(bool visible);

    PegThing* mParent = nullptr;
    PegThing* mFirst = nullptr;
    PegThing* mLast = nullptr;
    PegThing* mNext = nullptr;
    PegThing* mPrevious = nullptr;
    PegRect mArea;
    std::uint16_t mId;
    std::uint16_t mStyle;
    std::uint16_t mStatus = 0;
    std::uint8_t mType = TYPE_THING;
    std::uint8_t mLayer = LAYER_NORMAL;
    bool mHasTimers = false;
};
