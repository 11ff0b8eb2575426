#pragma once

#include "host/lcd/Icons.h"
#include "host/lcd/Painter.h"
#include "host/widgets/form/Field.h"
#include "toolkit/PString.h"

namespace host {

class FormField;

/// Whoever hears what the user does on the fields of a form. Each may delete the field.
struct FormFieldListener {
    /// He has changed its value.
    virtual void valueChanged(FormField& field) = 0;

    /// He sees what can be chosen.
    virtual void choicesShown(FormField& field) = 0;

    /// He has chosen with OK, another value than before or the same.
    virtual void chosen(FormField& field, bool isOther) = 0;

    /// Something else that the fields show has changed.
    virtual void lookChanged() = 0;

protected:
    ~FormFieldListener() = default;
};

/// The form as its fields see it.
struct FormFieldHolder : FormFieldListener {
    /// Lies over the form and gets all keys. The form's property; null takes off and deletes what is there.
    virtual void open(Field* choices) = 0;

    /// A field needs more room than before, or less.
    virtual void heightsChanged() = 0;

protected:
    ~FormFieldHolder() = default;
};

/// A field of a form: a label with an icon before it, and a value where the line ends. The one that has the focus is
/// shown inverted.
class FormField : public Field {
public:
    /// Its share of the line, in hundredths; 100 is a line of its own above the value, on two lines of text half of it.
    void setLabelShare(int percent);

    void setLabel(PegString label);
    const PegString& label() const { return mLabel; }

    /// Null is none.
    void setIcon(const Icon* icon);

    /// Whether the user can only read; what the field says itself, and what its form says of all.
    void setReadOnly(bool on);
    void setFormReadOnly(bool on);
    bool isReadOnly() const { return mReadOnly; }
    bool isLocked() const { return mReadOnly || mFormReadOnly; }

    /// Not owned, and lives as long as the field stands in it; null is none.
    void setHolder(FormFieldHolder* holder);

    /// Somebody else than the user has changed what it shows. The last thing that he does: the field may be gone.
    void tellLookChanged();

    /// What is shown of the value.
    virtual PegString value() const = 0;

    int heightFor(int width) const override;
    void Draw(PegPainter& painter) override;

protected:
    virtual void drawValue(PegPainter& painter, const PegRect& cell) const;

    /// How its texts are painted in the cell of the value.
    TextLook valueLook() const;
    Level ink() const { return hasFocus() ? Level::BARE : Level::DARK; }

    /// The last thing that a handler does: the field may be gone.
    void tellValueChanged();

    FormFieldHolder* holder() const { return mHolder; }

    /// Where the value is painted.
    PegRect valueArea() const { return parts().value; }

    /// Called when that may be elsewhere than before; the field's own Resize() says so, too.
    virtual void valueMoved() {}

    /// Called when somebody has said whether the user can only read.
    virtual void lockChanged() {}

    /// Called when it goes to another holder, while it has its former one.
    virtual void leaving() {}

private:
    struct Parts {
        PegRect icon;
        PegRect label;
        PegRect value;
    };

    Parts parts() const;
    bool isLabelAbove() const;

    PegString mLabel;
    const Icon* mIcon = nullptr;
    FormFieldHolder* mHolder = nullptr;
    int mShare = 50;
    bool mReadOnly = false;
    bool mFormReadOnly = false;
};

} // namespace host
