#include "apps/deskphone/Settings.h"

#include "DisplayAPI/List.h"
#include "DisplayAPI/ListItem.h"
#include "apps/deskphone/Home.h"
#include "apps/deskphone/Telephone.h"

#include <algorithm>

namespace deskphone {

namespace {

using enum Choice::Values;

const std::array<std::string, 3> DATE_FORMATS = {"dd.mm.yyyy", "mm/dd/yyyy", "yyyy-mm-dd"};
const std::array<std::string, 2> TIME_FORMATS = {"24h", "12h"};
constexpr std::array HOME_SCREENS = {Home::Kind::IDLE_SCREEN, Home::Kind::DESKTOP};
constexpr std::array SCREENSAVER_MINUTES = {0, 1, 5, 15};

std::string nothing(std::size_t)
{
    return {};
}

std::vector<std::string> namesOf(const std::vector<host::Language>& languages)
{
    std::vector<std::string> names;
    std::ranges::transform(languages, std::back_inserter(names), &host::Language::name);
    return names;
}

} // namespace

Settings::Settings(Telephone& telephone, Home& home, Calls& calls)
    : Screen(telephone, &home, "Settings.title"), mHome(home), mLanguages(telephone.languages().available()),
      mLanguage(telephone, this, "Settings.language", namesOf(mLanguages), AS_THEY_ARE,
                [this](std::size_t value) { return useLanguage(value); }),
      mRingTone(telephone, this, "Settings.ring.tone",
                {"Ring.tone.classic", "Ring.tone.marimba", "Ring.tone.blackbird", "Ring.tone.steam.organ",
                 "Ring.tone.silent"},
                TRANSLATED, nothing),
      mBrightness(telephone, this, "Settings.brightness", {"Brightness.low", "Brightness.medium", "Brightness.high"},
                  TRANSLATED, nothing),
      mDateFormat(telephone, this, "Settings.date", {"31.12.2026", "12/31/2026", "2026-12-31"}, AS_THEY_ARE,
                  [this](std::size_t value) { return useDateFormat(value); }),
      mTimeFormat(telephone, this, "Settings.time", {"14:30", "2:30 PM"}, AS_THEY_ARE,
                  [this](std::size_t value) { return useTimeFormat(value); }),
      mHomeScreen(telephone, this, "Settings.home", {"Home.idle", "Home.desktop"}, TRANSLATED,
                  [this](std::size_t value) { return useHomeScreen(value); }),
      mScreensaver(telephone, this, "Settings.saver",
                   {"Screensaver.never", "Screensaver.1.minute", "Screensaver.5.minutes", "Screensaver.15.minutes"},
                   TRANSLATED, [this](std::size_t value) { return useScreensaver(value); }),
      mDisturb(telephone, this, calls), mForwarding(telephone, this, calls), mDisturbText(text("Settings.disturb")),
      mForwardingText(text("Settings.forwarding"))
{
    const auto current = std::ranges::find(mLanguages, telephone.languages().current().code, &host::Language::code);
    if (current != mLanguages.end())
        mLanguage.setChosen(static_cast<std::size_t>(current - mLanguages.begin()));
    for (std::size_t i = 0; i < choices().size(); ++i)
        choices()[i]->setListener([this, i] { renewRow(mRows[i], choices()[i]->summary()); });
}

void Settings::build()
{
    for (std::size_t i = 0; i < mRows.size(); ++i) {
        // The user may choose a row as soon as it is appended.
        mRows[i] = new DisplayAPI::ListItem(choices()[i]->summary().info(), false);
        list().append(mRows[i]);
    }
    append(mDisturbText);
    append(mForwardingText);
}

void Settings::chosen(int row)
{
    if (const auto place = static_cast<std::size_t>(row); place < choices().size())
        choices().at(place)->open();
    else
        places().at(place - choices().size())->open();
}

std::string Settings::useLanguage(std::size_t value)
{
    return telephone().useLanguage(mLanguages.at(value).code);
}

std::string Settings::useDateFormat(std::size_t value)
{
    telephone().useDateFormat(DATE_FORMATS.at(value));
    return {};
}

std::string Settings::useTimeFormat(std::size_t value)
{
    telephone().useTimeFormat(TIME_FORMATS.at(value));
    return {};
}

std::string Settings::useHomeScreen(std::size_t value)
{
    mHome.use(HOME_SCREENS.at(value));
    return {};
}

std::string Settings::useScreensaver(std::size_t value)
{
    mHome.setScreensaverMinutes(SCREENSAVER_MINUTES.at(value));
    return {};
}

} // namespace deskphone
