#include "apps/deskphone/Settings.h"

#include "DisplayAPI/SelectionField.h"
#include "DisplayAPI/SliderItem.h"
#include "apps/deskphone/Home.h"
#include "apps/deskphone/Preferences.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"

#include <algorithm>

namespace deskphone {

using DisplayAPI::SelectionField;
using DisplayAPI::SliderItem;
using DisplayAPI::kit::onGuiThread;

namespace {

constexpr int HIGHEST_LEVEL = 10;

const std::string LANGUAGE = "language"; ///< in the preferences

std::string nothing(const std::string&)
{
    return {};
}

std::vector<std::string> inAll(const std::vector<host::Language>& languages, std::string host::Language::*part)
{
    std::vector<std::string> parts;
    std::ranges::transform(languages, std::back_inserter(parts), part);
    return parts;
}

} // namespace

Settings::Settings(Telephone& telephone, Home& home, Preferences& preferences)
    : FormScreen(telephone, &home, "Settings.title"), mPreferences(preferences), mSavedText(text("Status.saved"))
{
    addLanguages();
    addSounds();
    addFormats();
    addScreens(home);
    addCommand("Form.save", [this] { save(); });
    addCommand("Form.cancel", [this] { left(); });
}

/// The current one has taken effect already. Without catalogues there is none.
void Settings::addLanguages()
{
    const std::vector<host::Language> all = telephone().languages().available();
    const std::vector<std::string> codes = inAll(all, &host::Language::code);
    SelectionField& field = addChoiceOfNames("Settings.language", inAll(all, &host::Language::name));
    const std::string& current = telephone().languages().current().code;
    const auto place = std::ranges::find(codes, current) - codes.begin();
    field.setSelectionIndex(static_cast<int>(place));
    mSettings.push_back({LANGUAGE, codes, [this](const std::string& code) { return telephone().useLanguage(code); },
                         field, static_cast<std::size_t>(place)});
}

void Settings::addSounds()
{
    add(addChoice("Settings.ring.tone", {"Ring.tone.classic", "Ring.tone.marimba", "Ring.tone.blackbird",
                                         "Ring.tone.steam.organ", "Ring.tone.silent"}),
        "ring tone", {"classic", "marimba", "blackbird", "steam organ", "silent"}, nothing);
    addLevel("ringing volume", "Settings.volume", "5");
}

void Settings::addFormats()
{
    const auto useDate = [this](const std::string& format) {
        telephone().useDateFormat(format);
        return std::string();
    };
    const auto useTime = [this](const std::string& format) {
        telephone().useTimeFormat(format);
        return std::string();
    };
    addLevel("brightness", "Settings.brightness", "7");
    add(addChoiceOfNames("Settings.date", {"31.12.2026", "12/31/2026", "2026-12-31"}), "date format",
        {"dd.mm.yyyy", "mm/dd/yyyy", "yyyy-mm-dd"}, useDate);
    add(addChoiceOfNames("Settings.time", {"14:30", "2:30 PM"}), "time format", {"24h", "12h"}, useTime);
}

void Settings::addScreens(Home& home)
{
    const auto useHome = [&home](const std::string& kind) {
        home.use(kind == "desktop" ? Home::Kind::DESKTOP : Home::Kind::IDLE_SCREEN);
        return std::string();
    };
    const auto useScreensaver = [&home](const std::string& minutes) {
        home.setScreensaverMinutes(std::stoi(minutes));
        return std::string();
    };
    add(addChoice("Settings.home", {"Home.idle", "Home.desktop"}), "home", {"idle screen", "desktop"}, useHome);
    add(addChoice("Settings.saver",
                  {"Screensaver.never", "Screensaver.1.minute", "Screensaver.5.minutes", "Screensaver.15.minutes"}),
        "screensaver", {"0", "1", "5", "15"}, useScreensaver);
}

/// Begins with the first value where nothing else is kept.
void Settings::add(SelectionField& field, const std::string& name, const std::vector<std::string>& values,
                   const Effect& effect)
{
    const auto kept = std::ranges::find(values, mPreferences.get(name));
    const std::size_t place = kept != values.end() ? static_cast<std::size_t>(kept - values.begin()) : 0;
    field.setSelectionIndex(static_cast<int>(place));
    if (place != 0)
        effect(values[place]);
    mSettings.push_back({name, values, effect, field, place});
}

void Settings::addLevel(const std::string& name, const std::string& label, const std::string& usual)
{
    SliderItem& field = addSlider(label, HIGHEST_LEVEL);
    field.setValue(mPreferences.get(name, usual));
    mLevels.push_back({name, field, field.getValue()});
}

/// What cannot be chosen keeps the user here, and is as it was.
void Settings::save()
{
    std::string complaint;
    for (Choice& choice : mSettings)
        complaint += save(choice);
    for (Level& level : mLevels)
        mPreferences.set(level.name, level.value = level.field.getValue());
    showSaved();
    if (complaint.empty())
        leave();
    telephone().tell(complaint.empty() ? mSavedText.get() : complaint);
}

std::string Settings::save(Choice& choice)
{
    const int place = choice.field.getSelectionIndex();
    if (place < 0 || static_cast<std::size_t>(place) == choice.chosen)
        return {};
    const std::string& value = choice.values.at(static_cast<std::size_t>(place));
    std::string complaint = choice.effect(value);
    if (complaint.empty()) {
        choice.chosen = static_cast<std::size_t>(place);
        mPreferences.set(choice.name, value);
    }
    return complaint;
}

void Settings::left()
{
    showSaved();
    leave();
}

/// Whoever comes again begins anew.
void Settings::showSaved()
{
    onGuiThread([this] {
        for (Choice& choice : mSettings)
            choice.field.setSelectionIndex(static_cast<int>(choice.chosen));
        for (Level& level : mLevels)
            level.field.setValue(level.value);
        form().setSelected(&mSettings.front().field);
    });
}

std::string beginInLanguage(Telephone& telephone, const Preferences& preferences, const std::string& code)
{
    const std::string chosen = preferences.get(LANGUAGE, code);
    std::string complaint = telephone.useLanguage(chosen);
    if (!complaint.empty() && chosen != code)
        telephone.useLanguage(code);
    return complaint;
}

} // namespace deskphone
