#include "variants/list/ExclusiveListPrivateWP1.h"

#include "doubles/Answers.h"
#include "doubles/Recorder.h"

namespace DisplayAPI {

ExclusiveListPrivateWP1::ExclusiveListPrivateWP1(List* owner) : ListBoxPrivateWP1(owner, false)
{
    doubles::Recorder::instance().note(this, "ExclusiveListPrivateWP1", owner);
}

bool ExclusiveListPrivateWP1::isSelected(int index)
{
    doubles::Recorder::instance().note(this, "ExclusiveListPrivateWP1::isSelected", index);
    return doubles::Answers::instance().isSelected;
}

} // namespace DisplayAPI
