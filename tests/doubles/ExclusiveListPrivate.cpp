#include "variants/list/ExclusiveListPrivate.h"

#include "doubles/Answers.h"
#include "doubles/Recorder.h"

namespace DisplayAPI {

using doubles::Recorder;

ExclusiveListSide::ExclusiveListSide(List* owner, Panel panel) : ListBoxSide(owner, false, panel) {}

ExclusiveListPrivate::ExclusiveListPrivate(List* owner) : ExclusiveListSide(owner, Panel::FULL)
{
    Recorder::instance().note(this, "ExclusiveListPrivate", owner);
}

ExclusiveListPrivateWP1::ExclusiveListPrivateWP1(List* owner) : ExclusiveListSide(owner, Panel::SMALL)
{
    Recorder::instance().note(this, "ExclusiveListPrivateWP1", owner);
}

bool ExclusiveListSide::isSelected(int index)
{
    const bool isFull = dynamic_cast<ExclusiveListPrivate*>(this) != nullptr;
    Recorder::instance().note(this, isFull ? "ExclusiveListPrivate::isSelected" : "ExclusiveListPrivateWP1::isSelected",
                              index);
    return doubles::Answers::instance().isSelected;
}

} // namespace DisplayAPI
