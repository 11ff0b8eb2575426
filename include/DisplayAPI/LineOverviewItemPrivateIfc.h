#pragma once

#include "DisplayAPI/LineOverviewItem.h"
#include "DisplayAPI/ListItemPrivateIfc.h"

namespace DisplayAPI {

/// The GUI-thread side of a line's row. GUI thread only. Texts are UTF-8; translations are not owned, null is an empty
/// text.
class DISPLAYAPI_EXPORT LineOverviewItemPrivateIfc : public ListItemPrivateIfc {
public:
    virtual void setLineState(LineOverviewItem::LineState state) = 0;
    virtual void setDisplayHDIconStatus(bool on) = 0;
    virtual void setLineNamePrefix(TranslationInfo* prefix) = 0;
    virtual void setLineIdentity(TranslationInfo* identity) = 0;
    virtual void setLineIdentity(std::string identity) = 0;
    virtual void setLineName(std::string name) = 0;

    /// In milliseconds; 0 and less ends what is on.
    virtual void holdItem(int milliseconds) = 0;
};

} // namespace DisplayAPI
