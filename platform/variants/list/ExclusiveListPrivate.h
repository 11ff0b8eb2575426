#pragma once

#include "variants/list/ListBoxPrivate.h"

namespace DisplayAPI {

/// The GUI-thread side of an exclusive list, whatever the panel. Its current row is the chosen one and carries the
/// mark.
class DISPLAYAPI_EXPORT ExclusiveListSide : public ListBoxSide {
public:
    bool isSelected(int index);

protected:
    ExclusiveListSide(List* owner, Panel panel);
};

/// The exclusive list of the 240 x 128 panel and its narrow form.
class DISPLAYAPI_EXPORT ExclusiveListPrivate : public ExclusiveListSide {
public:
    /// `owner` is the facade, not owned. Like a list with a way back it goes back.
    explicit ExclusiveListPrivate(List* owner);
};

/// The exclusive list of the 208 x 42 panel.
class DISPLAYAPI_EXPORT ExclusiveListPrivateWP1 : public ExclusiveListSide {
public:
    /// `owner` is the facade, not owned. Like a list with a way back it goes back.
    explicit ExclusiveListPrivateWP1(List* owner);
};

} // namespace DisplayAPI
