#include "DisplayAPI/MenuCommand.h"
#include "pictures/StatusScreens.h"
#include "variants/popup/PopupTextFieldPrivate.h"

namespace {

using DisplayAPI::MenuCommand;
using DisplayAPI::PopupTextFieldSide;
using DisplayAPI::TextField;

/// Text-field popups over a list of rooms.
class TextFieldPopupPictures : public StatusScreens {
protected:
    ~TextFieldPopupPictures() override
    {
        mPopup->gainOwnership();
        gpPresent->Remove(mPopup->getWidget());
    }

    /// As a display does it.
    PopupTextFieldSide& showPopup(const char* label, const char* held, TextField::FieldType type)
    {
        mField = std::make_unique<TextField>(label, TextField::ICON_NONE, held, type);
        if (isTwoLines())
            mPopup = std::make_unique<DisplayAPI::PopupTextFieldPrivateWP1>(nullptr, mField.get(), true);
        else
            mPopup = std::make_unique<DisplayAPI::PopupTextFieldPrivate>(nullptr, mField.get());
        showList("Rooms", rooms(9));
        mPopup->releaseOwnership();
        gpPresent->Add(mPopup->getWidget());
        return *mPopup;
    }

    void press(std::initializer_list<int> keys)
    {
        for (const int key : keys)
            mPopup->getWidget()->Message({.wType = PM_KEY, .iData = key});
    }

    MenuCommand mSave{"Save", 1}, mCancel{"Cancel", 2};

private:
    std::unique_ptr<TextField> mField;
    std::unique_ptr<PopupTextFieldSide> mPopup;
};

} // namespace

TEST_P(TextFieldPopupPictures, NameIsTyped)
{
    auto& popup = showPopup("Name", "Zoë Ång", TextField::NAME);
    popup.addCommand(&mSave);
    popup.addCommand(&mCancel);
    press({PK_DOWN, '7', '7'});
    expectScreen("text-field-popup");
}

TEST_P(TextFieldPopupPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    showPopup("الاسم", "زوي", TextField::TEXT);
    expectScreen("text-field-popup-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, TextFieldPopupPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
