#include "GuiThread.h"

#ifdef DISPLAYAPI_CHECKED

#include "DisplayAPI/Widget.h"
#include "DisplayEventFilter.h"
#include "utilities/Threadable.h"

#include <cstdio>
#include <cstdlib>

namespace DisplayAPI {

void onlyOnGuiThread(const char* operation)
{
    if (Widget::isGuiThread() || DisplayEventFilter::getFilterPointer() == nullptr)
        return;
    std::fprintf(stderr,
                 "%s is the GUI thread's, and thread %u has called it. Let the GUI thread call it, from a request or a "
                 "timer's listener; if this is the GUI thread, call Widget::setGuiThreadId() on it first.\n",
                 operation, Threadable::currentThreadId());
    std::abort();
}

} // namespace DisplayAPI

#endif
