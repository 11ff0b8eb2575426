#include "support/TestWidget.h"

#include "utilities/Threadable.h"

#include <utility>

namespace test {

TestWidget::TestWidget(Handler handler) : mHandler(std::move(handler)) {}

void TestWidget::processGuiRequest(DisplayAPI::GuiRequestEvent& request)
{
    {
        std::lock_guard lock(mMutex);
        mCodes.push_back(request.getType());
        mThreads.push_back(Threadable::currentThreadId());
    }
    if (mHandler)
        mHandler(request);
    signalComplete(request);
}

std::vector<int> TestWidget::codes() const
{
    std::lock_guard lock(mMutex);
    return mCodes;
}

std::vector<unsigned int> TestWidget::threads() const
{
    std::lock_guard lock(mMutex);
    return mThreads;
}

DisplayAPI::GuiRequestEvent* numbered(DisplayAPI::Widget& widget, int code, int first, int second)
{
    auto* const record = new DisplayAPI::GuiRequestEvent(&widget, code);
    record->intParam1 = first;
    record->intParam2 = second;
    return record;
}

int ask(DisplayAPI::Widget& widget, int code, int question)
{
    int result = -1;
    DisplayAPI::GuiRequestEvent* const record = numbered(widget, code, question);
    record->returnValue3 = &result;
    widget.postEvent(record);
    return result;
}

void answer(DisplayAPI::GuiRequestEvent& question, int number)
{
    *static_cast<int*>(question.returnValue3) = number;
}

} // namespace test
