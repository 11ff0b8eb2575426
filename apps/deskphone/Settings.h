#pragma once

#include "apps/deskphone/Choice.h"
#include "apps/deskphone/Screen.h"
#include "host/languages/Languages.h"

#include <array>
#include <vector>

namespace deskphone {

/// The settings with their values. Choosing one leads to its possible values.
class Settings : public Screen {
public:
    Settings(Telephone& telephone, Place* parent);

    std::array<Choice*, 5> choices() { return {&mLanguage, &mRingTone, &mBrightness, &mDateFormat, &mTimeFormat}; }

private:
    void build() override;
    void chosen(int row) override;

    std::string useLanguage(std::size_t value);
    std::string useDateFormat(std::size_t value);
    std::string useTimeFormat(std::size_t value);

    std::vector<host::Language> mLanguages;
    Choice mLanguage;
    Choice mRingTone;
    Choice mBrightness;
    Choice mDateFormat;
    Choice mTimeFormat;
    std::array<DisplayAPI::ListItem*, 5> mRows{};
};

} // namespace deskphone
