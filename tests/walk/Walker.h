#pragma once

#include "simulator/script/ScriptedPhone.h"

#include <string>
#include <vector>

namespace DisplayAPI {
class Displayable;
class Display;
} // namespace DisplayAPI

namespace test {

/// Walks through the screens of a telephone, and says what is wrong after a step: it does not come to rest, nothing is
/// on the screen, nothing has the focus, a list stands on a row that it does not have, or the panel shows something
/// else than a panel that is painted anew. Its thread is none of the telephone's.
class Walker {
public:
    /// Where the telephone is now is its home; so is its desktop.
    Walker(simulator::ScriptedPhone& phone, DisplayAPI::Display& display);

    /// Carries out one line of a script. Returns a sentence where something is wrong, else nothing.
    std::string step(const std::string& line);

    /// Leads home by the left key, and stays there. Out of a form, whose fields have a use for it, up leads to the
    /// commands first.
    std::string goHome();

    /// The steps since it was at home last, the last one included: a script that repeats them.
    const std::vector<std::string>& sinceHome() const { return mSinceHome; }

    /// How often a step led from one screen to another, so that one can see that it has gone anywhere.
    int changes() const { return mChanges; }

private:
    /// What there is to see between two steps.
    struct Sight {
        const DisplayAPI::Displayable* current = nullptr;
        std::string name;
        std::string text;
    };

    Sight look() const;
    bool isHome(const Sight& sight) const;
    std::string run(const std::string& line);
    std::string complaint() const;
    bool hasGhosts() const;

    simulator::ScriptedPhone& mPhone;
    DisplayAPI::Display& mDisplay;
    Sight mSight;
    const DisplayAPI::Displayable* mHome;
    std::vector<std::string> mSinceHome;
    int mChanges = 0;
};

} // namespace test
