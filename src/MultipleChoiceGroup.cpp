#include "DisplayAPI/MultipleChoiceGroup.h"

#include "DisplayAPI/CheckBoxField.h"
#include "DisplayAPI/Form.h"

#include <algorithm>
#include <utility>

namespace DisplayAPI {

MultipleChoiceGroup::MultipleChoiceGroup(std::string name) : mName(std::move(name)) {}

MultipleChoiceGroup::~MultipleChoiceGroup()
{
    for (std::size_t i = mGiven; i < mFields.size(); ++i)
        delete mFields[i];
}

void MultipleChoiceGroup::append(std::string text, Image* image)
{
    const std::string label = mFields.empty() ? mName : std::string();
    mFields.push_back(new CheckBoxField(label, std::move(text), image));
}

/// A form owns what it has been given: no other one gets it as well.
void MultipleChoiceGroup::addToForm(Form* form)
{
    if (form == nullptr)
        return;
    mForm = form;
    for (; mGiven < mFields.size(); ++mGiven)
        mForm->append(mFields[mGiven]);
}

CheckBoxField* MultipleChoiceGroup::fieldAt(int index) const
{
    return index >= 0 && index < static_cast<int>(mFields.size()) ? mFields[static_cast<std::size_t>(index)] : nullptr;
}

void MultipleChoiceGroup::setSelectedIndex(int index, bool on)
{
    CheckBoxField* const field = fieldAt(index);
    if (index > 0 && field != nullptr)
        field->setChecked(on);
}

void MultipleChoiceGroup::setSelectedFlags(const std::vector<bool>& flags)
{
    for (std::size_t i = 0; i < std::min(mFields.size(), flags.size()); ++i)
        mFields[i]->setChecked(flags[i]);
}

std::vector<bool> MultipleChoiceGroup::getSelectedFlags() const
{
    std::vector<bool> flags;
    for (CheckBoxField* field : mFields)
        flags.push_back(field->isChecked());
    return flags;
}

bool MultipleChoiceGroup::isSelected(int index) const
{
    CheckBoxField* const field = fieldAt(index);
    return field != nullptr && field->isChecked();
}

std::string MultipleChoiceGroup::getString(int index) const
{
    CheckBoxField* const field = fieldAt(index);
    return field != nullptr ? field->getString() : std::string();
}

Image* MultipleChoiceGroup::getImage(int index) const
{
    CheckBoxField* const field = fieldAt(index);
    return field != nullptr ? field->getImage() : nullptr;
}

void MultipleChoiceGroup::insert(int, std::string, Image*) {}

void MultipleChoiceGroup::deleteItem(int) {}

void MultipleChoiceGroup::deleteAll() {}

void MultipleChoiceGroup::removeFromForm() {}

} // namespace DisplayAPI
