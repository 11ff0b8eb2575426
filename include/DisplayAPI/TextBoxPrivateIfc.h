#pragma once

#include "DisplayAPI/DisplayablePrivateIfc.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CommandListener;

/// The GUI-thread side of a text box. GUI thread only. Deleted by Displayable::deletePrivateSide() alone. Texts are
/// UTF-8. A translation is not owned and has to live while it is shown; null is an empty text.
class DISPLAYAPI_EXPORT TextBoxPrivateIfc : public virtual DisplayablePrivateIfc {
protected:
    friend class Displayable;
    virtual ~TextBoxPrivateIfc() = default;

public:
    virtual void addCommandListener(CommandListener* listener) = 0;
    virtual void removeCommandListener(CommandListener* listener) = 0;
    virtual std::string getText() = 0;
    virtual void setText(const std::string& text, bool cursorAtEnd) = 0;
    virtual void setText(TranslationInfo* text) = 0;
    virtual int getSize() = 0;
    virtual void setMaxSize(int characters) = 0;
    virtual int getMaxSize() = 0;
    virtual void clear() = 0;
    virtual void hide() = 0;
    virtual void setTitle(const std::string& title) = 0;
    virtual void setTitle(TranslationInfo* title) = 0;
};

} // namespace DisplayAPI
