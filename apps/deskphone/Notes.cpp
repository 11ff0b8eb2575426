#include "apps/deskphone/Notes.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Preferences.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::TextBox;

namespace {

constexpr bool ONE_LINE_BELOW_THE_TITLE = false;
constexpr bool CURSOR_AT_END = true;
const std::string NAME = "notes"; ///< in the preferences

} // namespace

Notes::Notes(Telephone& telephone, Place& parent, Preferences& preferences)
    : mTelephone(telephone), mParent(parent), mPreferences(preferences), mTitle(&telephone.languages(), "Menu.notes"),
      mEar([this](Command* command) { answer(command); }), mPage(ONE_LINE_BELOW_THE_TITLE)
{
    mPage.addCommandListener(&mEar);
    mPage.setTitle(mTitle.info());
    std::string text = preferences.get(NAME);
    mPage.setText(text, CURSOR_AT_END);
}

void Notes::open()
{
    mTelephone.arriveAt(*this);
    mTelephone.show(mPage);
}

void Notes::stopListening()
{
    mEar.stop();
}

/// Commands arrive later than they are raised: what the user did to a page that he has left is void.
void Notes::answer(Command* command)
{
    const bool isLeft = command == TextBox::SELECT_COMMAND() || command == TextBox::BACK_COMMAND();
    if (!isLeft || mTelephone.display().getCurrent() != &mPage)
        return;
    const std::string text = mPage.getText();
    const bool isChanged = text != mPreferences.get(NAME);
    if (isChanged)
        mPreferences.set(NAME, text);
    mParent.open();
    if (isChanged)
        mTelephone.tell(mTelephone.languages().translate("Status.saved"));
}

} // namespace deskphone
