#pragma once

#include "apps/deskphone/Choice.h"
#include "apps/deskphone/DisturbScreen.h"
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

    std::array<Choice*, 7> choices()
    {
        return {&mLanguage, &mRingTone, &mBrightness, &mDateFormat, &mTimeFormat, &mHomeScreen, &mScreensaver};
    }
    std::array<Place*, 2> places() { return {&mDisturb, &mForwarding}; }

private:
    void build() override;
    void chosen(int row) override;

    std::string useLanguage(std::size_t value);
    std::string useDateFormat(std::size_t value);
    std::string useTimeFormat(std::size_t value);
    std::string useHomeScreen(std::size_t value);
    std::string useScreensaver(std::size_t value);

    Home& mHome;
    std::vector<host::Language> mLanguages;
    Choice mLanguage;
    Choice mRingTone;
    Choice mBrightness;
    Choice mDateFormat;
    Choice mTimeFormat;
    Choice mHomeScreen;
    Choice mScreensaver;
    DisturbScreen mDisturb;
    ForwardingScreen mForwarding;
    Text& mDisturbText;
    Text& mForwardingText;
    std::array<DisplayAPI::ListItem*, 7> mRows{};
};

} // namespace deskphone
