#pragma once

#include "apps/deskphone/Choice.h"
#include "apps/deskphone/ForwardingScreen.h"
#include "apps/deskphone/Screen.h"
#include "host/languages/Languages.h"

#include <array>
#include <vector>

namespace deskphone {

class Calls;
class Home;

/// The settings with their values. Choosing one leads to its possible values.
class Settings : public Screen {
public:
    Settings(Telephone& telephone, Home& home, Calls& calls);

    void stopListening() override;
    void stopWorking() override;

    std::array<Choice*, 8> choices()
    {
        return {&mLanguage,   &mRingTone,   &mBrightness,  &mDateFormat,
                &mTimeFormat, &mHomeScreen, &mScreensaver, &mDisturb};
    }

private:
    void build() override;
    void chosen(int row) override;

    std::string useLanguage(std::size_t value);
    std::string useDateFormat(std::size_t value);
    std::string useTimeFormat(std::size_t value);
    std::string useHomeScreen(std::size_t value);
    std::string useScreensaver(std::size_t value);
    std::string useDisturb(std::size_t value);

    Home& mHome;
    Calls& mCalls;
    std::vector<host::Language> mLanguages;
    Choice mLanguage;
    Choice mRingTone;
    Choice mBrightness;
    Choice mDateFormat;
    Choice mTimeFormat;
    Choice mHomeScreen;
    Choice mScreensaver;
    Choice mDisturb;
    ForwardingScreen mForwarding;
    Text& mForwardingText;
    std::array<DisplayAPI::ListItem*, 8> mRows{};
};

} // namespace deskphone
