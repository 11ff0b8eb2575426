#pragma once

#include "DisplayAPI/Export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace DisplayAPI {

class CheckBoxField;
class Form;
class Image;

/// A column of check-box fields for a form, of which any may be checked. Plain: its operations run on the calling
/// thread and call the fields, which wait off the GUI thread; one thread at a time.
///
/// Ownership: the group owns its fields until addToForm() gives them to a form; afterwards they may be asked for as
/// long as that form has them. Images are not owned.
class DISPLAYAPI_EXPORT MultipleChoiceGroup {
public:
    /// The name is the label of the first field.
    explicit MultipleChoiceGroup(std::string name);
    MultipleChoiceGroup(const MultipleChoiceGroup&) = delete;
    MultipleChoiceGroup& operator=(const MultipleChoiceGroup&) = delete;
    ~MultipleChoiceGroup();

    /// A further field with that text, behind the others.
    void append(std::string text, Image* image);

    /// Appends every field that no form has been given yet. Null is ignored.
    void addToForm(Form* form);

    /// Not of the first field, which has index 0, nor of one that there is not.
    void setSelectedIndex(int index, bool on);

    /// In order, as far as there are both.
    void setSelectedFlags(const std::vector<bool>& flags);
    std::vector<bool> getSelectedFlags() const;

    /// False, empty and null for a field that there is not.
    bool isSelected(int index) const;
    std::string getString(int index) const;
    Image* getImage(int index) const;

    /// Fields stay: these do nothing.
    void insert(int index, std::string text, Image* image);
    void deleteItem(int index);
    void deleteAll();
    void removeFromForm();

private:
    CheckBoxField* fieldAt(int index) const;

    Form* mForm = nullptr;
    std::string mName;
    std::vector<CheckBoxField*> mFields;
    std::size_t mGiven = 0; ///< how many of them are the form's
};

} // namespace DisplayAPI
