#pragma once

#include "DisplayAPI/Export.h"

#include <string>

namespace DisplayAPI {

class Image;

/// The GUI-thread side of a check-box field. GUI thread only.
class DISPLAYAPI_EXPORT CheckBoxFieldPrivateIfc {
public:
    virtual ~CheckBoxFieldPrivateIfc() = default;

    virtual Image* getImage() = 0;
    virtual std::string getString() = 0;
    virtual bool isChecked() = 0;
    virtual void swapChecked() = 0;
    virtual void setChecked(bool on) = 0;
};

} // namespace DisplayAPI
