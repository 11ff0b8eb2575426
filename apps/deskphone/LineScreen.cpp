#include "apps/deskphone/LineScreen.h"

#include "DisplayAPI/KVXList.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"

namespace deskphone {

using DisplayAPI::KVXList;

LineScreen::LineScreen(Telephone& telephone, Place* parent)
    : Screen(telephone, parent, WITHOUT_TITLE, std::make_unique<KVXList>())
{
}

/// The lines follow the screen: taking the telephone's off the display takes off what stands in their place.
void LineScreen::bringUp()
{
    DisplayAPI::kit::onGuiThread([this] {
        telephone().show(list(), Telephone::Lines::NONE);
        for (unsigned int number = 0; const std::string& line : lines())
            static_cast<KVXList&>(list()).setDisplayText(number++, line);
    });
}

} // namespace deskphone
