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

} // namespace test
