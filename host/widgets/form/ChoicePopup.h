#pragma once

#include "host/widgets/form/Field.h"
#include "host/widgets/menu/CommandColumn.h"

namespace host {

/// The choices of a field over its form: a framed column, on two lines the whole panel. The column tells the target
/// what the user chooses, the left key is told as PM_LEFT.
class ChoicePopup : public Field {
public:
    /// Choices with a mark for the one that is selected; `current` is highlighted.
    ChoicePopup(std::vector<CommandColumn::Entry> choices, int current, PegThing* target);

    CommandColumn& column() const { return *mColumn; }

    /// Of the frame, too.
    int heightFor(int width) const override;
    bool key(int key) override;
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

private:
    CommandColumn* mColumn;
};

} // namespace host
