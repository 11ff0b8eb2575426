#pragma once

#include "host/widgets/edit/EditField.h"

namespace host {

class EditRow;

/// A line of text that is typed on the keypad; one that is too long is moved until the cursor is in sight.
class EditLine : public EditField {
public:
    int heightFor(int width) const override;
    void Draw(PegPainter& painter) override;

protected:
    std::optional<Caret> caretBeside(bool right) const override;
    bool isReadFromTheRight() const override;

private:
    struct Parts {
        PegRect text;
        PegRect mode;
    };

    Parts parts() const;
    void drawText(PegPainter& painter, const PegRect& cell);
    void drawEmpty(PegPainter& painter, const PegRect& cell) const;
    void keepInSight(const EditRow& row, int width);

    int mGone = 0; ///< pixels of the text beyond the edge at which it begins
};

} // namespace host
