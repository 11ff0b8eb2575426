#pragma once

#include "DisplayAPI/CallForwardItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a forwarding's row. GUI thread only. Texts are UTF-8; translations are not owned, null is an
/// empty text.
class DISPLAYAPI_EXPORT CallForwardItemPrivateIfc : public ListItemPrivateIfc {
public:
    virtual void check() = 0;
    virtual void uncheck() = 0;
    virtual void swapCheck() = 0;
    virtual bool getCheck() const = 0;
    virtual void setTextMain(TranslationInfo* text) = 0;
    virtual void setTextMain(std::string text) = 0;
    virtual void setTextBranch(TranslationInfo* text, TranslationInfo* label,
                               CallForwardItem::eCallForwardBranchLine line) = 0;
    virtual void setTextBranch(std::string text, TranslationInfo* label,
                               CallForwardItem::eCallForwardBranchLine line) = 0;
    virtual void setReadonly(bool on, bool showsMark) = 0;
    virtual void setCFIconVisible(bool on) = 0;
    virtual void cleanBranches() = 0;
    virtual std::string getText() const = 0;

    /// The one that the row was made with, whatever it is.
    virtual CallLogMainItem::IconType iconType() const = 0;
};

} // namespace DisplayAPI
