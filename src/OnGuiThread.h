#pragma once

#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/Widget.h"

namespace DisplayAPI {

/// Runs `work` on the GUI thread, at once there and elsewhere behind all that the caller has asked for so far, and
/// waits until it is done. It does not run where the display is deleted before its turn comes. For what has no code in
/// its facade's table.
template <typename Work>
void onGuiThread(Work work)
{
    class Errand : public Widget {
    public:
        explicit Errand(Work& errand) : mWork(errand) {}

        void processGuiRequest(GuiRequestEvent& request) override
        {
            mWork();
            signalComplete(request);
        }

    private:
        Work& mWork;
    };

    if (Widget::isGuiThread())
        work();
    else
        Errand(work).postEvent(0);
}

} // namespace DisplayAPI
