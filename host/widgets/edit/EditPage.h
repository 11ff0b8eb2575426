#pragma once

#include "host/widgets/edit/EditField.h"
#include "host/widgets/edit/PageLines.h"

namespace host {

class EditRow;

/// A page of text that is typed on the keypad, as in an EditLine, and goes on in the next line where it is too long. Up
/// and down move the cursor from line to line; the lines move until the cursor is in sight, and arrows tell that there
/// are more. As many lines are shown as fit into its area, and at least one.
class EditPage : public EditField {
public:
    /// Of all lines.
    int heightFor(int width) const override;

    /// The lines that are in sight, and the number of the first one.
    std::vector<PegString> linesShown();
    std::size_t topLine();

    /// Up and down as well, as long as there is a line to go to.
    bool key(int key) override;
    void Draw(PegPainter& painter) override;

protected:
    std::optional<Caret> caretBeside(bool right) const override;
    bool isReadFromTheRight() const override;

private:
    /// Where the parts stand; the mode's is empty where none is shown.
    struct Parts {
        PegRect text;
        PegRect mode;
        PegRect arrows;
    };

    Parts partsOf(const PegRect& area) const;
    const PageLines& linesIn(int width) const;

    /// Asked for once by whatever the user or the panel wants: it reads the whole text.
    const PageLines& lines() const;
    Parts parts() const { return partsOf(Area()); }
    EditRow rowOf(const PageLines& all, std::size_t line) const;
    Caret caretIn(const PageLines::Line& line) const;
    static std::optional<Caret> caretInNextLine(const PageLines& all, std::size_t line, bool forward);
    bool moveLines(int by);
    std::size_t linesInSight() const;
    std::size_t endOfSight(const PageLines& all) const;
    void keepInSight(const PageLines& all);
    void drawLine(PegPainter& painter, const PageLines& all, std::size_t line, const PegRect& cell) const;
    void drawArrows(PegPainter& painter, bool hasMoreBelow) const;

    mutable PageLines mLines;        ///< laid when they are asked for
    std::size_t mTop = 0;            ///< the first line in sight
    int mGoal = 0;                   ///< where the cursor wants to be in a line, while it goes up and down
    std::optional<Caret> mGoalCaret; ///< where that has led it
};

} // namespace host
