#include "CallRow.h"

#include "OfRow.h"
#include "Operations.h"
#include "utilities/ICC.h"

namespace DisplayAPI {

namespace {

enum Request { CREATE = 10, DESTROY = 11, SET_NUMBER = 12 };

} // namespace

CallRowSide::CallRowSide(const std::string& name) : mRow(ICC::fromUTF8toUNICODE(name), PegString()) {}

void CallRowSide::setNumber(const std::string& number)
{
    mRow.setSecond(ICC::fromUTF8toUNICODE(number));
}

struct CallRow::Ops : Operations<Posts<CREATE, &CallRow::create>, Waits<DESTROY, &CallRow::destroy>,
                                 Posts<SET_NUMBER, ofRow<&CallRowSide::setNumber>>> {};

CallRow::CallRow(const std::string& party) : ListItem(nullptr)
{
    Ops::call<CREATE>(*this, implementation(), party);
}

CallRow::~CallRow()
{
    Ops::call<DESTROY>(*this, implementation());
}

void CallRow::create(const std::string& party)
{
    name = "CallRow";
    setImplementation(new CallRowSide(party));
}

void CallRow::processGuiRequest(GuiRequestEvent& request)
{
    if (!Ops::carryOut(*this, implementation(), request))
        return ListItem::processGuiRequest(request);
    signalComplete(request);
}

void CallRow::setNumber(const std::string& number)
{
    Ops::call<SET_NUMBER>(*this, implementation(), number);
}

} // namespace DisplayAPI
