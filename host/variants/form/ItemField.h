#pragma once

#include "DisplayAPI/OwnershipDelegate.h"
#include "DisplayAPI/TranslatedText.h"
#include "DisplayAPI/WatchedWidget.h"
#include "host/widgets/form/FormField.h"

#include <utility>

namespace DisplayAPI {

/// The field of an item, and its label. The field is the form's while it stands in one, and leaves it with its item:
/// the form's window may be gone by then, or the field.
template <typename Field>
struct ItemField {
    explicit ItemField(TranslatedText itemLabel) : label(std::move(itemLabel)) { showLabel(); }
    ItemField(const ItemField&) = delete;
    ItemField& operator=(const ItemField&) = delete;
    ~ItemField() { ownership.gainOwnership(); }

    void setLabel(TranslatedText text)
    {
        label = std::move(text);
        showLabel();
        changed();
    }

    /// The last thing that an operation does: whoever is told may delete the item.
    void changed()
    {
        if (field != nullptr)
            field->tellLookChanged();
    }

    void showLabel()
    {
        if (field != nullptr)
            field->setLabel(label.shown());
    }

    TranslatedText label;
    WatchedWidget<Field> field{std::in_place_type<Field>};
    OwnershipDelegate<Field> ownership{field.slot(), true};
};

} // namespace DisplayAPI
