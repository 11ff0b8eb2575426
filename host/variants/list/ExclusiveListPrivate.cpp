#include "variants/list/ExclusiveListPrivate.h"

#include "widgets/KestrelListBox.h"

namespace DisplayAPI {

ExclusiveListSide::ExclusiveListSide(List* owner, Panel panel) : ListBoxSide(owner, true, panel)
{
    static_cast<KestrelListBox*>(getWidget())->setExclusive(true);
}

ExclusiveListPrivate::ExclusiveListPrivate(List* owner) : ExclusiveListSide(owner, Panel::FULL) {}

ExclusiveListPrivateWP1::ExclusiveListPrivateWP1(List* owner) : ExclusiveListSide(owner, Panel::SMALL) {}

bool ExclusiveListSide::isSelected(int index)
{
    return index >= 0 && index == getSelectedIndex();
}

} // namespace DisplayAPI
