#include "variants/list/ExclusiveListPrivate.h"

#include "widgets/KestrelListBox.h"

namespace DisplayAPI {

ExclusiveListPrivate::ExclusiveListPrivate(List* owner) : ListBoxPrivate(owner, true)
{
    static_cast<KestrelListBox*>(getWidget())->setExclusive(true);
}

bool ExclusiveListPrivate::isSelected(int index)
{
    return index >= 0 && index == getSelectedIndex();
}

} // namespace DisplayAPI
