#pragma once

#include "DisplayAPI/ListItem.h"

namespace DisplayAPI {

/// What the rows of a phonebook have in common.
class DISPLAYAPI_EXPORT PhonebookItem : public ListItem {
public:
    /// The icon in front of an entry; any value travels through.
    enum IconType : int { ICON_NONE = 0, ICON_IMAGE = 6 };

    /// There are no such rows yet.
    PhonebookItem() = delete;
};

} // namespace DisplayAPI
