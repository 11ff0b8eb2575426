#pragma once

#include "variants/list/ListBoxPrivateWP1.h"

namespace DisplayAPI {

/// The exclusive list of the 208 x 42 panel. Its current row is the chosen one and carries the mark.
class DISPLAYAPI_EXPORT ExclusiveListPrivateWP1 : public ListBoxPrivateWP1 {
public:
    /// `owner` is the facade, not owned. Like a list with a way back it goes back.
    explicit ExclusiveListPrivateWP1(List* owner);

    bool isSelected(int index);
};

} // namespace DisplayAPI
