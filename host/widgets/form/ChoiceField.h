#pragma once

#include "host/widgets/form/FormField.h"
#include "host/widgets/menu/CommandColumn.h"

#include <vector>

namespace host {

class ChoicePopup;

/// One of several choices: left and right go to the next one, where texts are read from the right the other way round,
/// OK shows all of them over the form. There the left key goes back without a choice.
class ChoiceField : public FormField {
public:
    ~ChoiceField() override;

    /// Choices are changed while they are not shown: whoever changes them takes them off.
    void append(CommandColumn::Entry choice);
    void setText(int choice, PegString text);
    void clear();
    int count() const { return static_cast<int>(mChoices.size()); }

    /// -1 is none; others that there are not are ignored.
    void select(int choice);
    int selected() const { return mSelected; }

    /// Stands in the place of the selection while nothing is selected, or that is not to be shown.
    void setContents(PegString contents);
    void setShowsSelection(bool on);

    /// -1 where the choices are not shown.
    int highlighted() const;

    PegString value() const override;
    bool key(int key) override;
    int Message(const PegMessage& message) override;

protected:
    void drawValue(PegPainter& painter, const PegRect& cell) const override;
    void lockChanged() override;
    void focusChanged() override;
    void leaving() override { close(); }

private:
    bool step(bool forward);
    bool open();
    void close();
    void choose(int choice);

    std::vector<CommandColumn::Entry> mChoices;
    PegString mContents;
    ChoicePopup* mPopup = nullptr; ///< the form's; null while the choices are not shown
    int mSelected = -1;
    bool mShowsSelection = true;
};

} // namespace host
