#include "apps/deskphone/Dialer.h"

#include "DisplayAPI/Display.h"
#include "apps/deskphone/Telephone.h"

#include <utility>

namespace deskphone {

using DisplayAPI::Command;

namespace {

TranslationInfo* translated(Telephone& telephone, const std::string& key)
{
    return new TranslationInfo(key, &telephone.languages());
}

} // namespace

Dialer::Dialer(Telephone& telephone, std::function<void(const std::string&)> dial, const std::string& text)
    : mTelephone(telephone), mDial(std::move(dial)), mDialCommand(translated(telephone, text), 0),
      mPasteCommand(translated(telephone, "Dialer.paste"), 0), mChoice([this](Command* command) { chosen(command); }),
      mPopup(HAS_WAY_BACK, 0)
{
    mPopup.addCommand(&mDialCommand);
    mPopup.addCommand(&mPasteCommand);
    mPopup.addCommandListener(&mChoice);
}

void Dialer::open(char digit)
{
    show(std::string(1, digit));
}

void Dialer::show(const std::string& text)
{
    mPopup.setLineEditText(text);
    mPopup.show();
}

bool Dialer::isUp() const
{
    return mTelephone.display().getCurrent() == &mPopup;
}

void Dialer::type(char digit)
{
    paste(std::string(1, digit));
}

void Dialer::paste(const std::string& text)
{
    mPopup.setLineEditText(mPopup.getLineEditText() + text);
}

/// What was chosen twice before it had gone is chosen once.
void Dialer::chosen(const Command* command)
{
    if (!isUp())
        return;
    if (command == &mPasteCommand)
        return paste(mTelephone.copied());
    const std::string number = command == &mDialCommand ? mPopup.getLineEditText() : std::string();
    if (number.empty())
        return;
    mPopup.dismiss();
    mDial(number);
}

} // namespace deskphone
