#pragma once

#include "DisplayAPI/ListBoxPrivateIfc.h"

struct PegMessage;

namespace DisplayAPI {

/// The GUI-thread side of a KVX list. GUI thread only. Deleted by Displayable::deletePrivateSide() alone.
class DISPLAYAPI_EXPORT KVXListPrivateIfc : public ListBoxPrivateIfc {
protected:
    friend class Displayable;
    ~KVXListPrivateIfc() override = default;

public:
    /// What the toolkit's list tells, and the change of the language. Returns 0.
    virtual int Message(const PegMessage& message) = 0;

    /// Without effect: display lines are set one by one, and have the list's colour.
    virtual void numtitlelines(unsigned int lines) = 0;
    virtual void titlecolour(int colour) = 0;

    /// The translation is owned from now on, and deleted when the line gets another one; null forgets the line's text
    /// and leaves what is shown.
    virtual void titletext(unsigned int line, const std::string& text) = 0;
    virtual void titletext(unsigned int line, TranslationInfo* text) = 0;
    virtual void cleartitle() = 0;

    /// Whether the user has moved the selection since it was last asked.
    virtual bool selectionchanged() const = 0;
};

} // namespace DisplayAPI
