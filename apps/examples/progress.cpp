#include "DisplayAPI/Command.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/PopupProgress.h"
#include "DisplayAPI/Timer.h"
#include "apps/examples/Example.h"
#include "kit/Subscription.h"

#include <string>

using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::PopupProgress;
using DisplayAPI::Timer;

namespace {

constexpr int ONE_SECOND = 1'000;
constexpr int STEP = 20;

} // namespace

/// OK starts an update that takes five seconds, and shows how far it is.
int main()
{
    DisplayAPI::kit::Phone phone(examples::phoneSettings());
    Command tick("", Command::ITEM);
    List updates(0);
    PopupProgress progress;
    Timer clock(0);
    int percent = 0;
    progress.setText("Update");
    progress.setType(PopupProgress::INFORMATION);
    progress.setCurrentActivityText("Copying");
    clock.addCommand(&tick);

    const auto showProgress = [&] {
        progress.setCurrentStageText("Stage " + std::to_string(percent / STEP + 1));
        progress.updateProgressBar(percent);
    };
    DisplayAPI::kit::Subscription start(updates, [&](Command*) {
        percent = 0;
        showProgress();
        progress.show();
        clock.start(ONE_SECOND);
    });
    DisplayAPI::kit::Subscription step(clock, [&](Command*) {
        percent += STEP;
        if (percent < 100)
            return showProgress();
        clock.stop();
        progress.dismiss();
        updates.setTitle("Up to date");
    });
    phone.run(updates, [&] {
        updates.setTitle("Telephone");
        updates.append("Update");
    });
}
