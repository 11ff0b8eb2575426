#include "apps/deskphone/NetworkSettings.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/TreeNode.h"
#include "apps/deskphone/NetworkValues.h"
#include "apps/deskphone/Preferences.h"
#include "apps/deskphone/Telephone.h"

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::List;
using DisplayAPI::TextField;
using DisplayAPI::Tree;
using DisplayAPI::TreeNode;

namespace {

constexpr int BRANCH = -1; ///< others have the number of their form

} // namespace

NetworkForm::NetworkForm(Telephone& telephone, Place& parent, Preferences& preferences, const std::string& name,
                         const std::string& label, TextField::FieldType type)
    : FormScreen(telephone, &parent, "Menu.network"), mPreferences(preferences), mName(name),
      mField(addText(label, type))
{
    mField.setString(preferences.get(name));
    addCommand("Form.save", [this] { save(); });
    addCommand("Form.cancel", [this] { left(); });
}

void NetworkForm::save()
{
    const std::string value = mField.getString();
    const bool isWhole = isComplete(value, mField.getFieldType());
    if (isWhole) {
        mPreferences.set(mName, value);
        leave();
    }
    telephone().tell(telephone().languages().translate(isWhole ? "Status.saved" : "Network.incomplete"));
}

void NetworkForm::left()
{
    mField.setString(mPreferences.get(mName));
    form().setSelected(&mField);
    leave();
}

NetworkSettings::NetworkSettings(Telephone& telephone, Place& parent, Preferences& preferences)
    : mTelephone(telephone), mParent(parent), mPreferences(preferences),
      mEar([this](Command* command) { answer(command); })
{
    mTree.addCommandListener(&mEar);
    mTree.setTreeName(mTexts.emplace_back(&telephone.languages(), "Menu.network").info());
    mTree.setTreeIcon(Tree::SETTINGS);
    TreeNode* const address = addBranch("Network.addresses");
    add(address, "network address", "Network.address", TextField::IP_ADDRESS);
    add(address, "network gateway", "Network.gateway", TextField::IP_ADDRESS);
    TreeNode* const care = addBranch("Network.maintenance");
    add(care, "network update", "Network.update", TextField::DATE);
    add(care, "network password", "Network.password", TextField::PASSWORD);
}

TreeNode* NetworkSettings::addBranch(const std::string& text)
{
    return mTree.addNode(mTexts.emplace_back(&mTelephone.languages(), text).info(), BRANCH);
}

void NetworkSettings::add(TreeNode* branch, const std::string& name, const std::string& label,
                          TextField::FieldType type)
{
    branch->addNode(mTexts.emplace_back(&mTelephone.languages(), label).info(), static_cast<int>(mForms.size()));
    mForms.emplace_back(mTelephone, *this, mPreferences, name, label, type);
}

void NetworkSettings::open()
{
    mTelephone.arriveAt(*this);
    mTelephone.show(mTree);
}

void NetworkSettings::stopListening()
{
    mEar.stop();
    for (NetworkForm& form : mForms)
        form.stopListening();
}

/// Commands arrive later than they are raised: what the user did to a tree that he has left is void.
void NetworkSettings::answer(Command* command)
{
    if (mTelephone.display().getCurrent() != &mTree)
        return;
    if (command == List::BACK_COMMAND())
        return mParent.open();
    const TreeNode* const node = command == List::SELECT_COMMAND() ? mTree.getSelected() : nullptr;
    if (node != nullptr && node->getId() != BRANCH)
        mForms.at(static_cast<std::size_t>(node->getId())).open();
}

} // namespace deskphone
