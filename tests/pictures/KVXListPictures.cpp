#include "DisplayAPI/KVXList.h"
#include "DisplayAPI/ListBoxPrivateIfc.h"
#include "pictures/StatusScreens.h"

namespace {

/// KVX lists; calls run at once, since nobody is the GUI thread.
class KVXListPictures : public StatusScreens {
protected:
    ~KVXListPictures() override
    {
        mList.getPrivateImpl()->gainOwnership();
        gpPresent->Remove(mList.getPrivateImpl()->getWidget());
    }

    /// As a display does it.
    void showRows(int count)
    {
        for (const std::string& room : rooms(count))
            mList.append(room);
        PegThing* const widget = mList.getPrivateImpl()->getWidget();
        mList.getPrivateImpl()->releaseOwnership();
        gpPresent->Add(widget);
        gpPresent->MoveFocusTree(widget);
        host::Lcd::current()->paint();
    }

    DisplayAPI::KVXList mList;
};

} // namespace

TEST_P(KVXListPictures, LinesAboveTheRows)
{
    showRows(9);
    mList.setDisplayText(0, "Account 4711");
    mList.setDisplayText(1, "Balance 12.50");
    mList.getPrivateImpl()->getWidget()->Message({.wType = PM_KEY, .iData = PK_DOWN});
    expectScreen("kvx");
}

TEST_P(KVXListPictures, LineWithoutATextKeepsItsPlace)
{
    showRows(2);
    for (unsigned int line = 0; line < 4; ++line)
        mList.setDisplayText(line, "Line " + std::to_string(line));
    mList.setDisplayText(1, std::string(24, ' '));
    expectScreen("kvx-gap");
}

INSTANTIATE_TEST_SUITE_P(Panel, KVXListPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
