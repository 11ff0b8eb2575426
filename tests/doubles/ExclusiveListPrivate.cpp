#include "variants/list/ExclusiveListPrivate.h"

#include "doubles/Answers.h"
#include "doubles/Recorder.h"

namespace DisplayAPI {

ExclusiveListPrivate::ExclusiveListPrivate(List* owner) : ListBoxPrivate(owner, false)
{
    doubles::Recorder::instance().note(this, "ExclusiveListPrivate", owner);
}

bool ExclusiveListPrivate::isSelected(int index)
{
    doubles::Recorder::instance().note(this, "ExclusiveListPrivate::isSelected", index);
    return doubles::Answers::instance().isSelected;
}

} // namespace DisplayAPI
