#pragma once

#include "DisplayAPI/Export.h"

#include <string>

class TranslationInfo;

namespace DisplayAPI {

class CallConnectedItem;

/// The GUI-thread side of a conference's row, beside that of a call, which is the same object. GUI thread only.
class DISPLAYAPI_EXPORT ConferenceCallItemPrivateIfc {
public:
    virtual ~ConferenceCallItemPrivateIfc() = default;

    /// UTF-8, or else the translation, which is not owned and may be null.
    virtual void setTitleSuffix(const std::string& suffix, TranslationInfo* translation) = 0;

    /// Members are not owned. Null is ignored, and so is what is no member.
    virtual void appendCall(CallConnectedItem* call, bool isTitle) = 0;
    virtual void removeCall(CallConnectedItem* call) = 0;
    virtual void removeCall(int index) = 0;

    /// Selects; none where there is no such member.
    virtual void setCallItem(int index) = 0;

    /// Null where there is none.
    virtual CallConnectedItem* getSelectedMember() = 0;
    virtual CallConnectedItem* getTitleMember() = 0;
    virtual CallConnectedItem* getIndexedMember(int index) = 0;
};

} // namespace DisplayAPI
