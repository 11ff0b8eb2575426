#include "apps/deskphone/ForwardingForm.h"

#include "DisplayAPI/SelectionField.h"
#include "DisplayAPI/SliderItem.h"
#include "apps/deskphone/PhoneBook.h"
#include "kit/OnGuiThread.h"

namespace deskphone {

using DisplayAPI::TextField;
using DisplayAPI::kit::onGuiThread;

namespace {

constexpr int LONGEST_SECONDS = 60;
constexpr int ON = 0;

} // namespace

ForwardingForm::ForwardingForm(Telephone& telephone, Place& parent, Delay delay, Take take)
    : FormScreen(telephone, &parent, "Menu.forwarding"), mTake(std::move(take)),
      mNumber(addText("Forwarding.number", TextField::TELEPHONE_NUMBER)),
      mIsOn(addChoice("Forwarding.on", {"Choice.yes", "Choice.no"})),
      mDelay(delay == Delay::ASKED ? &addSlider("Forwarding.delay", LONGEST_SECONDS) : nullptr)
{
    addCommand("Form.save", [this] { save(); });
    addCommand("Form.cancel", [this] { leave(); });
}

void ForwardingForm::begin(const Values& values)
{
    onGuiThread([&] {
        mNumber.setString(values.number);
        mIsOn.setSelectionIndex(ON);
        if (mDelay != nullptr)
            mDelay->setValue(std::to_string(values.seconds));
        form().setSelected(&mNumber);
    });
    open();
}

void ForwardingForm::save()
{
    Values values;
    onGuiThread([&] { values = read(); });
    if (mTake(values))
        leave();
}

ForwardingForm::Values ForwardingForm::read()
{
    const bool isOn = mIsOn.getSelectionIndex() == ON;
    return {.number = isOn ? digitsOf(mNumber.getString()) : std::string(),
            .seconds = mDelay != nullptr ? std::stoi("0" + mDelay->getValue()) : 0};
}

} // namespace deskphone
