#include "apps/deskphone/Settings.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"

namespace deskphone {

using DisplayAPI::ListItem;

Settings::Settings(DisplayAPI::Display& display, Screen* parent)
    : Screen(display, parent, "Settings"),
      mRingTone(display, this, "Ring tone", {"Classic", "Marimba", "Blackbird", "Steam organ", "Silent"}),
      mBrightness(display, this, "Brightness", {"Low", "Medium", "High"})
{
    for (std::size_t i = 0; i < choices().size(); ++i)
        choices()[i]->setListener([this, i] { renewRow(mRows[i], choices()[i]->summary()); });
}

void Settings::build()
{
    for (std::size_t i = 0; i < mRows.size(); ++i) {
        mRows[i] = new ListItem(choices()[i]->summary(), false);
        list().append(mRows[i]);
    }
}

void Settings::chosen(int row)
{
    choices().at(static_cast<std::size_t>(row))->open();
}

} // namespace deskphone
