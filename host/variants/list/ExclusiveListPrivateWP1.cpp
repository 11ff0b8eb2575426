#include "variants/list/ExclusiveListPrivateWP1.h"

#include "widgets/KestrelListBox.h"

namespace DisplayAPI {

ExclusiveListPrivateWP1::ExclusiveListPrivateWP1(List* owner) : ListBoxPrivateWP1(owner, true)
{
    static_cast<KestrelListBox*>(getWidget())->setExclusive(true);
}

bool ExclusiveListPrivateWP1::isSelected(int index)
{
    return index >= 0 && index == getSelectedIndex();
}

} // namespace DisplayAPI
