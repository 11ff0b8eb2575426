#pragma once

#include "variants/list/ListBoxPrivate.h"

namespace DisplayAPI {

/// The exclusive list of the 240 x 128 panel and its narrow form. Its current row is the chosen one and carries the
/// mark.
class DISPLAYAPI_EXPORT ExclusiveListPrivate : public ListBoxPrivate {
public:
    /// `owner` is the facade, not owned. Like a list with a way back it goes back.
    explicit ExclusiveListPrivate(List* owner);

    bool isSelected(int index);
};

} // namespace DisplayAPI
