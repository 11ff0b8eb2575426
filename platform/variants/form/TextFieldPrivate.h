#pragma once

#include "DisplayAPI/TextFieldPrivateIfc.h"
#include "DisplayAPI/TranslatedText.h"
#include "variants/Panel.h"

#include <memory>

namespace DisplayAPI {

/// The GUI-thread side of a text field, whatever the panel.
class DISPLAYAPI_EXPORT TextFieldSide : public TextFieldPrivateIfc {
public:
    ~TextFieldSide() override;

    PegThing* getWidget() override;
    void releaseOwnership() override;
    void gainOwnership() override;
    void localeChanged(std::string locale) override;

    int size() override;
    std::string getString() override;
    void setString(TranslationInfo* text) override;
    void setString(const std::string& text) override;
    void setLabel(TranslationInfo* label) override;
    void setLabel(const std::string& label) override;
    std::string getLabel() override;
    void setIcon(TextField::IconImage icon) override;
    void setFieldType(TextField::FieldType type) override;
    void setMaxFieldLength(int characters) override;
    void setInformAppOnOk(Command* command) override;
    void setReadOnlyMode(bool on) override;
    bool getReadOnlyMode() override;

    /// What its form raises when the user presses OK on it; null is what the form raises otherwise.
    Command* commandForOk();

    /// For a popup that edits the field: what may stand in it, and whether it is there still.
    TextField::FieldType fieldType() const;
    int maxFieldLength() const;
    std::weak_ptr<void> life() const;

    /// What the user types there. Who has heard of it tells it.
    void edit(const std::string& text);

protected:
    TextFieldSide(TranslatedText label, TextField::IconImage icon, TranslatedText text, TextField::FieldType type,
                  bool readOnly, Panel panel);

private:
    struct Impl;
    std::unique_ptr<Impl> mImpl;
};

/// The text field of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT TextFieldPrivate : public TextFieldSide {
public:
    TextFieldPrivate(TranslationInfo* label, TextField::IconImage icon, TranslationInfo* text,
                     TextField::FieldType type, bool readOnly);
    TextFieldPrivate(const std::string& label, TextField::IconImage icon, const std::string& text,
                     TextField::FieldType type);
};

/// The text field of the 208 x 42 panel.
class DISPLAYAPI_EXPORT TextFieldPrivateWP1 : public TextFieldSide {
public:
    TextFieldPrivateWP1(TranslationInfo* label, TextField::IconImage icon, TranslationInfo* text,
                        TextField::FieldType type, bool readOnly);
    TextFieldPrivateWP1(const std::string& label, TextField::IconImage icon, const std::string& text,
                        TextField::FieldType type);
};

} // namespace DisplayAPI
