#include "DisplayAPI/ExclusiveList.h"

#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/list/ExclusiveListPrivate.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE_BASE = 0, CREATE = 40, GET_SELECTED_INDEX = 41, IS_SELECTED = 42, SET_SELECTED_INDEX = 45 };

constexpr int LIST_TYPE = 1;

bool isChosen(ListBoxPrivateIfc& list, int index)
{
    auto* const exclusive = dynamic_cast<ExclusiveListSide*>(&list);
    return exclusive != nullptr && exclusive->isSelected(index);
}

} // namespace

// Off the GUI thread isSelected() does not wait for its answer.
struct ExclusiveList::Ops
    : Operations<Posts<CREATE_BASE, &ExclusiveList::createBase>, Waits<CREATE, &ExclusiveList::createExclusive>,
                 Waits<GET_SELECTED_INDEX, &ListBoxPrivateIfc::getSelectedIndex, -1>,
                 Posts<IS_SELECTED, &isChosen, false>,
                 Waits<SET_SELECTED_INDEX, &ListBoxPrivateIfc::setSelectedIndex>> {};

// The base is created from here and not by its own constructor: the GUI thread must not meet the object before it is an
// ExclusiveList.
ExclusiveList::ExclusiveList() : List(nullptr)
{
    Ops::call<CREATE_BASE>(*this, implementation(), backFlagFor(LIST_TYPE));
    Ops::call<CREATE>(*this, implementation());
}

// What is queued runs while the object is still an ExclusiveList.
ExclusiveList::~ExclusiveList()
{
    waitForEarlierRequests();
}

/// The implementation made here is replaced by the exclusive one and not released.
void ExclusiveList::createBase(bool backFlag)
{
    create(backFlag);
}

void ExclusiveList::createExclusive()
{
    // Other than in List, every variant but 0 is the full panel.
    if (hardwareVariant() != SMALL_PANEL)
        setImplementation(new ExclusiveListPrivate(this));
    else
        setImplementation(new ExclusiveListPrivateWP1(this));
}

void ExclusiveList::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return List::processGuiRequest(request);
    signalComplete(request);
}

void ExclusiveList::cleanup() {}

void ExclusiveList::setSelectedIndex(int index)
{
    Ops::call<SET_SELECTED_INDEX>(*this, implementation(), index);
}

int ExclusiveList::getSelectedIndex()
{
    return Ops::call<GET_SELECTED_INDEX>(*this, implementation());
}

bool ExclusiveList::isSelected(int index)
{
    return Ops::call<IS_SELECTED>(*this, implementation(), index);
}

void ExclusiveList::addCommand(Command*) {}

void ExclusiveList::removeCommand(Command*) {}

void ExclusiveList::setWaitAnimation(bool) {}

} // namespace DisplayAPI
