#include "DisplayAPI/ItemPrivateIfc.h"
#include "DisplayAPI/MenuCommand.h"
#include "pictures/StatusScreens.h"
#include "variants/form/FormPrivate.h"
#include "variants/form/SelectionFieldPrivate.h"
#include "variants/form/SliderItemPrivate.h"
#include "variants/form/TextFieldPrivate.h"
#include "widgets/CheckBoxListItem.h"

namespace {

using DisplayAPI::Command;
using DisplayAPI::Form;

/// A form as it is filled in.
class FormPictures : public StatusScreens {
protected:
    ~FormPictures() override { takeOff(); }

    /// As a display does it.
    DisplayAPI::FormSide& show(Form::FormProportionType proportion)
    {
        takeOff();
        if (isTwoLines())
            mForm = new DisplayAPI::FormPrivateWP1(nullptr, proportion);
        else
            mForm = new DisplayAPI::FormPrivate(nullptr, proportion);
        mForm->releaseOwnership();
        gpPresent->Add(mForm->getWidget());
        return *mForm;
    }

    void press(std::initializer_list<int> keys)
    {
        for (const int key : keys)
            mForm->getWidget()->Message({.wType = PM_KEY, .iData = key});
    }

    /// The form owns its widget.
    void append(std::unique_ptr<DisplayAPI::ItemPrivateIfc> item)
    {
        mForm->append(nullptr, item->getWidget());
        mForm->own(item.get());
        mItems.push_back(std::move(item));
    }

    void appendSlider(const std::string& label, const char* value)
    {
        auto slider = std::make_unique<DisplayAPI::SliderItemPrivate>(label);
        slider->setValue(value);
        append(std::move(slider));
    }

    void appendText(const std::string& label, const char* text, DisplayAPI::TextField::FieldType type)
    {
        using DisplayAPI::TextField;
        append(std::make_unique<DisplayAPI::TextFieldPrivate>(label, TextField::ICON_NONE, text, type));
    }

    Command mSave{"Save", Command::SAVE}, mCancel{"Cancel", Command::BACK};

private:
    void takeOff()
    {
        mItems.clear();
        if (mForm == nullptr)
            return;
        mForm->gainOwnership();
        gpPresent->Remove(mForm->getWidget());
        mForm->destroy();
    }

    std::vector<std::unique_ptr<DisplayAPI::ItemPrivateIfc>> mItems;
    DisplayAPI::FormSide* mForm = nullptr;
};

} // namespace

TEST_P(FormPictures, SlidersAndCommands)
{
    auto& form = show(Form::HALF_AND_HALF);
    form.setTitle("Loudness");
    appendSlider("Ringing", "60");
    appendSlider("Handset", "0");
    appendSlider("Loudspeaker", "100");
    form.addCommand(&mSave);
    form.addCommand(&mCancel);
    expectScreen("form-sliders");
    press({PK_DOWN, PK_RIGHT, PK_DOWN, PK_DOWN, PK_RIGHT});
    expectScreen("form-commands");
}

TEST_P(FormPictures, SelectionAndItsChoices)
{
    using DisplayAPI::MenuCommand;
    using DisplayAPI::PhonebookItem;
    std::vector<std::unique_ptr<MenuCommand>> kinds;
    for (const auto& [label, icon] : {std::pair{"Office", PhonebookItem::ICON_WORK},
                                      {"Home", PhonebookItem::ICON_HOME},
                                      {"Mobile phone", PhonebookItem::ICON_MOBILE}})
        kinds.push_back(std::make_unique<MenuCommand>(label, icon, 0));
    auto& form = show(Form::SHORT_LABELS);
    form.setTitle("Zoë Ångström");
    auto field = std::make_unique<DisplayAPI::SelectionFieldPrivate>("Kind", PhonebookItem::ICON_PERSON, kinds[0].get(),
                                                                     nullptr);
    for (const auto& kind : kinds)
        field->appendSelection(kind.get());
    field->setSelectionIndex(1);
    append(std::move(field));
    appendSlider("Ringing", "60");
    expectScreen("form-selection");
    press({PK_OK, PK_DOWN});
    expectScreen("form-choices");
}

TEST_P(FormPictures, CheckBoxesInAList)
{
    KestrelListBox& list = showList("Days", {});
    CheckBoxListItem monday(text("Monday")), tuesday(text("Tuesday"));
    tuesday.setChecked(true);
    list.append(&monday);
    list.append(&tuesday);
    expectScreen("check-boxes");
}

TEST_P(FormPictures, MoreThanFitWithLabelsAbove)
{
    auto& form = show(Form::LABELS_ABOVE);
    form.setTitle("Loudness");
    for (const char* label : {"Ringing", "Handset", "Loudspeaker", "Headset", "Keys"})
        appendSlider(label, "42.50");
    press({PK_DOWN, PK_DOWN});
    expectScreen("form-labels-above");
}

TEST_P(FormPictures, TextsAreTyped)
{
    using DisplayAPI::TextField;
    auto& form = show(Form::SHORT_LABELS);
    form.setTitle("Contact");
    appendText("Name", "Zoë Ångström of Gamla stan", TextField::NAME);
    appendText("Number", "+49 30 123", TextField::TELEPHONE_NUMBER);
    appendText("PIN", "1234", TextField::PASSWORD);
    expectScreen("form-text-cursor");
    press({PK_DOWN, PK_DOWN, '5'});
    expectScreen("form-password");
    press({PK_UP, PK_UP, PK_LEFT, '5'});
    expectScreen("form-text-candidate");
}

TEST_P(FormPictures, TextsReadFromTheRight)
{
    using DisplayAPI::TextField;
    mApplication.setLocale(text("ar"));
    show(Form::LABELS_ABOVE);
    appendText("الاسم", "زوي", TextField::TEXT);
    appendText("الرقم", "030 123", TextField::NUMBER);
    press({PK_RIGHT});
    expectScreen("form-text-arabic");
}

TEST_P(FormPictures, ReadFromTheRight)
{
    mApplication.setLocale(text("ar"));
    auto& form = show(Form::LONG_LABELS);
    form.setTitle("الشاشة");
    appendSlider("اللغة", "25");
    for (int i = 0; i < 6; ++i)
        appendSlider("الإعدادات", "50");
    expectScreen("form-arabic");
}

INSTANTIATE_TEST_SUITE_P(Panel, FormPictures,
                         testing::Values(host::Variant::PLAIN, host::Variant::NARROW, host::Variant::WP1),
                         [](const auto& tested) { return std::string(host::nameOf(tested.param)); });
