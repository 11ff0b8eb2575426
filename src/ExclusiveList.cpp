#include "DisplayAPI/ExclusiveList.h"

#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "Request.h"
#include "Variant.h"
#include "variants/list/ExclusiveListPrivate.h"
#include "variants/list/ExclusiveListPrivateWP1.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE_BASE = 0, CREATE = 40, GET_SELECTED_INDEX = 41, IS_SELECTED = 42, SET_SELECTED_INDEX = 45 };

constexpr int LIST_TYPE = 1;

} // namespace

// The base is created from here and not by its own constructor: the GUI thread must not meet the object before it is an
// ExclusiveList.
ExclusiveList::ExclusiveList() : List(nullptr)
{
    const bool backFlag = backFlagFor(LIST_TYPE);
    if (isGuiThread()) {
        createBase(backFlag);
        createExclusive();
    } else {
        postEventAsync(request(this, CREATE_BASE, backFlag));
        postEvent(CREATE);
    }
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
    switch (request.getType()) {
    case CREATE_BASE: createBase(request.boolParam1); break;
    case CREATE: createExclusive(); break;
    case GET_SELECTED_INDEX: answer<int>(request, chosenIndex()); break;
    case IS_SELECTED: isChosen(request.intParam1); break;
    case SET_SELECTED_INDEX: choose(request.intParam1); break;
    default: return List::processGuiRequest(request);
    }
    signalComplete(request);
}

void ExclusiveList::cleanup() {}

void ExclusiveList::setSelectedIndex(int index)
{
    if (isGuiThread())
        return choose(index);
    postEvent(request(this, SET_SELECTED_INDEX, index));
}

int ExclusiveList::getSelectedIndex()
{
    if (isGuiThread())
        return chosenIndex();
    int index = -1;
    postEvent(request(this, GET_SELECTED_INDEX, into(index)));
    return index;
}

bool ExclusiveList::isSelected(int index)
{
    if (isGuiThread())
        return isChosen(index);
    postEventAsync(request(this, IS_SELECTED, index));
    return false;
}

void ExclusiveList::choose(int index)
{
    if (implementation() != nullptr)
        implementation()->setSelectedIndex(index);
}

int ExclusiveList::chosenIndex()
{
    return implementation() != nullptr ? implementation()->getSelectedIndex() : -1;
}

bool ExclusiveList::isChosen(int index)
{
    if (auto* list = dynamic_cast<ExclusiveListPrivate*>(implementation()))
        return list->isSelected(index);
    if (auto* list = dynamic_cast<ExclusiveListPrivateWP1*>(implementation()))
        return list->isSelected(index);
    return false;
}

void ExclusiveList::addCommand(Command*) {}

void ExclusiveList::removeCommand(Command*) {}

void ExclusiveList::setWaitAnimation(bool) {}

} // namespace DisplayAPI
