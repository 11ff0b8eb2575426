#pragma once

#include "DisplayAPI/TextField.h"
#include "DisplayAPI/Tree.h"
#include "apps/deskphone/Ear.h"
#include "apps/deskphone/FormScreen.h"
#include "apps/deskphone/Place.h"
#include "kit/Text.h"

#include <deque>
#include <string>

namespace deskphone {

class Preferences;
class Telephone;

/// One value of the network settings to fill in. OK keeps it, as the command at the foot does; who goes back keeps
/// nothing.
class NetworkForm : public FormScreen {
public:
    /// `name` is the value's in the preferences, `label` the key of a text.
    NetworkForm(Telephone& telephone, Place& parent, Preferences& preferences, const std::string& name,
                const std::string& label, DisplayAPI::TextField::FieldType type);

private:
    void confirmed() override { save(); }
    void left() override;
    void save();

    Preferences& mPreferences;
    std::string mName;
    DisplayAPI::TextField& mField;
};

/// Where the telephone is in the network and how it is looked after: a tree with a form for each value.
class NetworkSettings : public Place {
public:
    /// `preferences` outlive it.
    NetworkSettings(Telephone& telephone, Place& parent, Preferences& preferences);

    void open() override;
    void stopListening() override;

private:
    void answer(DisplayAPI::Command* command);

    DisplayAPI::TreeNode* addBranch(const std::string& text);
    void add(DisplayAPI::TreeNode* branch, const std::string& name, const std::string& label,
             DisplayAPI::TextField::FieldType type);

    Telephone& mTelephone;
    Place& mParent;
    Preferences& mPreferences;
    std::deque<Text> mTexts; ///< before the tree that shows them
    std::deque<NetworkForm> mForms;
    Ear mEar; ///< before the tree that it hears
    DisplayAPI::Tree mTree;
};

} // namespace deskphone
