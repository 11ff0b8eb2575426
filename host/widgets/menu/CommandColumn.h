#pragma once

#include "host/lcd/Icons.h"
#include "host/widgets/form/Field.h"
#include "toolkit/PString.h"

#include <vector>

namespace host {

/// Commands one below the other, of which one is current and in sight: up and down move, from either end to the other,
/// and OK chooses. Tells its target PM_CURRENT_CHANGED and PM_CLICKED with the command's number.
/// Cost: nothing but a clear or an insertion far from the end depends on the number of commands.
class CommandColumn : public Field {
public:
    /// Icons are not owned; null is none. One in front of a text, and one behind it.
    struct Entry {
        PegString text;
        const Icon* icon = nullptr;
        const Icon* mark = nullptr;
        bool leadsBack = false; ///< as the left key does
    };

    /// 0 is the front, count() the end. The current one stays current; the first one becomes it.
    void insert(int command, Entry entry);
    void clear();

    /// Ignored where there is no such command.
    void setText(int command, PegString text);
    void setCurrent(int command);

    int count() const { return static_cast<int>(mEntries.size()); }
    const Entry& at(int command) const { return mEntries.at(static_cast<std::size_t>(command)); }

    /// -1 where there is none.
    int current() const { return mCurrent; }

    /// The first one in sight, and where one stands: empty for one out of sight.
    int top() const { return mTop; }
    PegRect rowArea(int command) const;

    /// How many it wants to have in sight at most; as many as that on two lines.
    void setMostRows(int rows);

    int heightFor(int width) const override;
    bool key(int key) override;
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

private:
    int rowsInSight() const;
    bool scrolls() const { return count() > rowsInSight(); }
    PegRect scrollArea() const;
    bool keepInSight();
    void moveTo(int command);
    bool step(int by);
    bool choose();
    void drawRow(PegPainter& painter, int command) const;
    void drawScroll(PegPainter& painter) const;

    std::vector<Entry> mEntries;
    int mCurrent = -1;
    int mTop = 0;
    int mMostRows = 1;
    bool mHasIcons = false; ///< texts stand below one another, with an icon or without
};

} // namespace host
