#pragma once

#include "host/widgets/form/Field.h"
#include "toolkit/PString.h"

#include <vector>

namespace host {

/// Commands side by side, of which one is current, inverted while the bar has the focus and framed while it has not:
/// left and right move, OK chooses. Where they do not fit, the current one stands alone between arrows. Tells its
/// target PM_CURRENT_CHANGED and PM_CLICKED with the command's number.
class CommandBar : public Field {
public:
    /// The first one becomes current.
    void setCommands(std::vector<PegString> texts);

    /// The first one to be appended becomes current; where the current one is removed, the one behind it does, or else
    /// the last.
    void append(PegString text);
    void remove(int command);

    /// The current one stays.
    void setText(int command, PegString text);

    int count() const { return static_cast<int>(mTexts.size()); }
    const PegString& text(int command) const { return mTexts.at(static_cast<std::size_t>(command)); }

    /// -1 where there is none.
    int current() const { return mCurrent; }

    /// Commands that there are not are ignored.
    void setCurrent(int command);

    int heightFor(int width) const override;
    bool key(int key) override;
    bool takesFocus() const override { return count() > 0; }
    void Draw(PegPainter& painter) override;

    /// A command that is in view, and where.
    struct Cell {
        int command;
        PegRect area;
    };
    std::vector<Cell> cells() const;

private:
    bool fits() const;
    static int widthOfText(const PegString& text);
    bool step(int by);
    void drawCell(PegPainter& painter, const Cell& cell) const;
    void drawArrows(PegPainter& painter) const;

    std::vector<PegString> mTexts;
    std::vector<int> mWidths; ///< of the texts, in pixels
    int mCurrent = -1;
};

} // namespace host
