#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "DisplayAPI/PopupProgress.h"

#include <memory>
#include <string>

class TranslationInfo;

namespace DisplayAPI {

/// The GUI-thread side of a progress popup. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Texts
/// are UTF-8; a null translation is an empty text.
class DISPLAYAPI_EXPORT PopupProgressPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~PopupProgressPrivateIfc() = default;

public:
    virtual void setText(std::string text) = 0;
    virtual void setText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setCurrentStageText(std::string text) = 0;
    virtual void setCurrentStageText(std::unique_ptr<TranslationInfo> text) = 0;
    virtual void setCurrentActivityText(std::string text) = 0;
    virtual void setCurrentActivityText(std::unique_ptr<TranslationInfo> text) = 0;

    /// Any number: what lies beyond 0 and 100 is the nearer of the two.
    virtual void updateProgressBar(int percent) = 0;
    virtual void setType(PopupProgress::InfoType type) = 0;

    /// Comes to the top of a display by itself; show() is what the display says when it has happened.
    virtual void open() = 0;
    virtual void dismiss() = 0;
};

} // namespace DisplayAPI
