#pragma once

#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/TextField.h"

namespace DisplayAPI {

/// The GUI-thread side of a text field. GUI thread only. Texts are UTF-8. A translation is not owned and has to live
/// while it is shown; null is an empty text.
class DISPLAYAPI_EXPORT TextFieldPrivateIfc : public ItemPrivateIfc {
public:
    virtual int size() = 0;
    virtual std::string getString() = 0;
    virtual void setString(TranslationInfo* text) = 0;
    virtual void setString(const std::string& text) = 0;
    virtual void setLabel(TranslationInfo* label) = 0;
    virtual void setLabel(const std::string& label) = 0;
    virtual std::string getLabel() = 0;
    virtual void setIcon(TextField::IconImage icon) = 0;
    virtual void setFieldType(TextField::FieldType type) = 0;
    virtual void setMaxFieldLength(int characters) = 0;
    virtual void setInformAppOnOk(Command* command) = 0;
    virtual void setReadOnlyMode(bool on) = 0;
    virtual bool getReadOnlyMode() = 0;
};

} // namespace DisplayAPI
