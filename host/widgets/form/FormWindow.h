#pragma once

#include "host/widgets/form/FormField.h"
#include "host/widgets/form/ScrollingColumn.h"
#include "host/widgets/popup/CommandBar.h"
#include "host/widgets/status/StatusStrip.h"
#include "toolkit/PegWindow.h"

namespace host {

/// Whoever hears what the user does on a form. Each may delete the form.
struct FormListener : FormFieldListener {
    /// He has gone to another field.
    virtual void currentChanged() = 0;

    /// He has chosen the command in the bar.
    virtual void commandChosen(int command) = 0;

    /// Nothing on the form has a use for the key.
    virtual void formKey(int key) = 0;

protected:
    ~FormListener() = default;
};

/// A form: status lines where there are any, a title, a column of fields that scrolls, and a bar of commands at the
/// foot. The keys are the fields' or the bar's: down leads from the last field to the bar, up from the first, and both
/// lead back. From every field that has no use of its own for OK the key leads to the bar while it is held, for one
/// command or until left or the way back; where there is a bar OK is what it is otherwise when it goes up. On two lines
/// the bar is there as long as the user is in it, and the title yields to a field that is
/// higher than a line.
class FormWindow : public PegWindow, private FormFieldHolder {
public:
    /// The share of the labels, in hundredths of a line: FormField::setLabelShare().
    explicit FormWindow(int labelShare);
    ~FormWindow() override;

    /// An empty one takes no room.
    void setTitle(PegString title);
    const PegString& title() const { return mTitle; }
    PegRect titleArea() const { return parts().title; }

    /// Puts it at the column's end. It is the form's property while it is in it.
    void append(FormField* field);

    /// The current field; null where none takes the focus.
    FormField* current() const { return static_cast<FormField*>(mColumn->focused()); }

    /// Ignored where the field is not in the form or takes no focus.
    void setCurrent(const FormField* field);

    /// Whether the user can only read.
    void setReadOnly(bool on);

    const ScrollingColumn& column() const { return *mColumn; }
    CommandBar& bar() const { return *mBar; }
    StatusStrip& status() const { return *mStatus; }

    /// What lies over the form: the choices of the current field; null where nothing does.
    const Field* opened() const { return mOpened; }

    /// The bar's commands have changed.
    void fitBar();

    /// Texts may be read from the other side than before.
    void turn();

    /// A key that is held is somebody else's from now on.
    void letGo();

    /// Not owned; null is nobody.
    void setListener(FormListener* listener) { mListener = listener; }

    int Message(const PegMessage& message) override;
    void Resize(const PegRect& area) override;
    void Draw(PegPainter& painter) override;

private:
    enum Place { FIELDS, COMMANDS };

    /// Where the parts stand; one that is not there is empty. Painting and laying out both ask here.
    struct Parts {
        PegRect status;
        PegRect title;
        PegRect fields;
        PegRect bar;
        PegRect opened;
    };

    Parts parts() const;
    PegRect openedArea() const;
    bool hasRoomForTitle(int height) const;
    void layOut();
    void layOutBar(const PegRect& place);
    FormField* fieldAt(int index) const { return static_cast<FormField*>(mColumn->at(index)); }

    /// Where there is nothing to go to elsewhere the user stays where there is.
    Place place() const;
    void setPlace(Place place);
    void go(Place place);

    void keyDown(int key);
    void keyUp(int key);
    void visitBar();
    void choose(int command);
    bool key(int key);
    bool keyInBar(int key);
    void valueChanged(FormField& field) override;
    void choicesShown(FormField& field) override;
    void chosen(FormField& field, bool isOther) override;
    void lookChanged() override;
    void open(Field* choices) override;
    void heightsChanged() override;

    StatusStrip* mStatus;
    ScrollingColumn* mColumn;
    CommandBar* mBar;
    Field* mOpened = nullptr;
    PegString mTitle;
    PegRect mTitleArea; ///< where it has been painted
    FormListener* mListener = nullptr;
    const int mLabelShare;
    Place mPlace = FIELDS;
    bool mReadOnly = false;
    bool mHoldsOk = false;   ///< and what it means is still to be seen
    bool mVisitsBar = false; ///< for one command
};

} // namespace host
