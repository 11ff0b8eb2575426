#pragma once

#include "apps/deskphone/FormScreen.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace deskphone {

class Home;
class Preferences;

/// How the telephone looks and sounds, as a form. What the user saves takes effect, and is there in the next run.
class Settings : public FormScreen {
public:
    /// `preferences` outlive it. What they have takes effect, but for the language.
    Settings(Telephone& telephone, Home& home, Preferences& preferences);

private:
    /// What a value brings about; returns the sentence that says why it cannot be chosen, or nothing.
    using Effect = std::function<std::string(const std::string&)>;

    /// One of several values.
    struct Choice {
        std::string name; ///< in the preferences
        std::vector<std::string> values;
        Effect effect;
        DisplayAPI::SelectionField& field;
        std::size_t chosen; ///< which of the values is saved
    };

    /// A number.
    struct Level {
        std::string name; ///< in the preferences
        DisplayAPI::SliderItem& field;
        std::string value; ///< as it is saved
    };

    void confirmed() override { save(); }
    void left() override;

    void addLanguages();
    void addSounds();
    void addFormats();
    void addScreens(Home& home);

    void add(DisplayAPI::SelectionField& field, const std::string& name, const std::vector<std::string>& values,
             const Effect& effect);
    void addLevel(const std::string& name, const std::string& label, const std::string& usual);
    void save();
    std::string save(Choice& choice);
    void showSaved();

    Preferences& mPreferences;
    Text& mSavedText;
    std::deque<Choice> mSettings;
    std::deque<Level> mLevels;
};

/// Begins in the language that the user has chosen, or where there is none in that with the code. Returns the sentence
/// that says why it is another one than he has chosen, or nothing.
std::string beginInLanguage(Telephone& telephone, const Preferences& preferences, const std::string& code);

} // namespace deskphone
