#include "Cases.h"
#include "Phone.h"

#include "DisplayAPI/Desktop.h"
#include "DisplayAPI/DisplayablePrivateIfc.h"
#include "kit/OnGuiThread.h"

namespace bench {

namespace {

constexpr int TEXTS = 2'000;

void fill(DisplayAPI::Desktop& desktop)
{
    desktop.setStatusBarMode("Away", "until 3");
    desktop.setDate(9, 3, 2026);
    desktop.setTime(9, 41, 0);
    desktop.setExtLabelText("4711");
    desktop.setLogoText("Northern Light");
    for (int key = 0; key < desktop.getNumberOfFPKLabels(); ++key)
        desktop.setFPKLabel(key, "Key " + std::to_string(key), true, false);
}

double asText()
{
    Phone phone;
    DisplayAPI::Desktop desktop;
    fill(desktop);
    phone.display().setCurrent(&desktop);
    double nanoseconds = 0;
    DisplayAPI::kit::onGuiThread([&] {
        DisplayAPI::DisplayablePrivateIfc& side = *desktop.getPrivateImpl();
        nanoseconds = nanosecondsEach(TEXTS, [&] { static_cast<void>(side.serialise()); });
    });
    phone.display().setCurrent(nullptr);
    return nanoseconds / 1e3;
}

} // namespace

std::vector<Case> desktopCases()
{
    return {{SCREEN, "Desktop with all its texts as text", "us", asText}};
}

} // namespace bench
