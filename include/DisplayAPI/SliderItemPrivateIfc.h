#pragma once

#include "DisplayAPI/ItemPrivateIfc.h"

class TranslationInfo;

namespace DisplayAPI {

/// The GUI-thread side of a slider. GUI thread only. Texts are UTF-8, values are numbers as text. A translation is not
/// owned and has to live while it is shown; null is an empty text.
class DISPLAYAPI_EXPORT SliderItemPrivateIfc : public ItemPrivateIfc {
public:
    virtual std::string getMaxValue() = 0;
    virtual void setMaxValue(const std::string& value) = 0;
    virtual void setMinValue(const std::string& value) = 0;
    virtual std::string getValue() = 0;
    virtual void setValue(const std::string& value) = 0;
    virtual void setLabel(const std::string& label) = 0;
    virtual void setLabel(TranslationInfo* label) = 0;
    virtual void setInterval(const std::string& value) = 0;
    virtual void setReadOnly(bool on) = 0;
    virtual bool isReadOnly() = 0;
};

} // namespace DisplayAPI
