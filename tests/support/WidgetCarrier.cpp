#include "support/WidgetCarrier.h"

#include "DisplayAPI/Widget.h"

namespace test {

using DisplayAPI::GuiRequestEvent;
using DisplayAPI::Widget;

GuiRequestEvent* WidgetCarrier::make(Widget& facade, int code, const Filling& filling, Done* done)
{
    auto* const record = new GuiRequestEvent(&facade, code);
    record->stringParam1 = filling.text1;
    record->stringParam2 = filling.text2;
    record->stringParam3 = filling.text3;
    record->intParam1 = filling.int1;
    record->intParam2 = filling.int2;
    record->intParam3 = filling.int3;
    record->boolParam1 = filling.bool1;
    record->boolParam2 = filling.bool2;
    record->ptrParam1 = const_cast<void*>(filling.ptr1);
    record->ptrParam2 = const_cast<void*>(filling.ptr2);
    record->ptrParam3 = const_cast<void*>(filling.ptr3);
    record->setWaitCondition(done);
    return record;
}

void WidgetCarrier::carryOut(Widget& facade, GuiRequestEvent& record)
{
    facade.processGuiRequest(record);
}

void WidgetCarrier::post(Widget& facade, GuiRequestEvent* record)
{
    facade.postEventAsync(record);
}

} // namespace test
