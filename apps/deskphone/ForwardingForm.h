#pragma once

#include "apps/deskphone/FormScreen.h"

#include <functional>
#include <string>

namespace deskphone {

/// To whom calls go on, whether they do, and for those that nobody answers after how long. OK has it take effect, as
/// the command at the foot does; who goes back changes nothing.
class ForwardingForm : public FormScreen {
public:
    struct Values {
        std::string number = {}; ///< empty where calls do not go on
        int seconds = 0;         ///< that it rings before
    };

    /// Returns whether the values have been taken; else the user stays.
    using Take = std::function<bool(const Values&)>;

    enum class Delay { NONE, ASKED };

    ForwardingForm(Telephone& telephone, Place& parent, Delay delay, Take take);

    /// On the threads that answer the user.
    void begin(const Values& values);

private:
    void confirmed() override { save(); }
    void save();
    Values read();

    Take mTake;
    DisplayAPI::TextField& mNumber;
    DisplayAPI::SelectionField& mIsOn;
    DisplayAPI::SliderItem* mDelay; ///< null where it is not asked
};

} // namespace deskphone
