#include "apps/deskphone/FormScreen.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/SelectionField.h"
#include "DisplayAPI/SliderItem.h"
#include "apps/deskphone/Panel.h"
#include "apps/deskphone/Telephone.h"
#include "kit/OnGuiThread.h"

namespace deskphone {

using DisplayAPI::Command;
using DisplayAPI::Form;
using DisplayAPI::MenuCommand;
using DisplayAPI::SelectionField;
using DisplayAPI::SliderItem;
using DisplayAPI::TextField;
using DisplayAPI::kit::onGuiThread;

namespace {

/// What leaves room for names, and for labels in all languages.
Form::FormProportionType proportion()
{
    if (!isNarrowPanel())
        return Form::SHORT_LABELS;
    return isSmallPanel() ? Form::HALF_AND_HALF : Form::LABELS_ABOVE;
}

} // namespace

FormScreen::FormScreen(Telephone& telephone, Place* parent, const std::string& title)
    : mTelephone(telephone), mParent(parent), mEar([this](Command* command) { answer(command); }), mForm(proportion())
{
    mForm.addCommandListener(&mEar);
    mForm.setTitle(text(title).info());
}

FormScreen::~FormScreen() = default;

void FormScreen::open()
{
    mTelephone.arriveAt(*this);
    mTelephone.show(mForm);
}

void FormScreen::stopListening()
{
    mEar.stop();
}

/// Whoever comes again finds the first command under his finger, not the one that ended his last visit.
void FormScreen::leave()
{
    onGuiThread([this] {
        mForm.clearCommands();
        for (SoftKey& key : mSoftKeys)
            mForm.addCommand(&key.command);
    });
    if (mParent != nullptr)
        mParent->open();
}

/// Commands arrive later than they are raised: what the user did to a form that he has left is void.
void FormScreen::answer(Command* command)
{
    if (mTelephone.display().getCurrent() != &mForm)
        return;
    if (command == Form::BACK_COMMAND())
        return left();
    if (command == Form::OK_COMMAND())
        return confirmed();
    if (command == Form::SELECTION_CHANGED_COMMAND())
        return changed();
    for (const SoftKey& key : mSoftKeys)
        if (&key.command == command)
            return key.run();
}

Text& FormScreen::text(const std::string& key, std::vector<Text::Argument> arguments)
{
    return mTexts.emplace_back(&mTelephone.languages(), key, std::move(arguments));
}

/// For a command, whose own it is.
TranslationInfo* FormScreen::translated(const std::string& key)
{
    return new TranslationInfo(key, &mTelephone.languages());
}

TextField& FormScreen::addText(const std::string& label, TextField::FieldType type)
{
    auto* const field = new TextField(text(label).info(), TextField::ICON_NONE, nullptr, type, false);
    mForm.append(field);
    return *field;
}

SliderItem& FormScreen::addSlider(const std::string& label, int most)
{
    auto* const field = new SliderItem(text(label).info());
    field->setMinValue("0");
    field->setMaxValue(std::to_string(most));
    field->setInterval("1");
    mForm.append(field);
    return *field;
}

SelectionField& FormScreen::addChoice(const std::string& label, const std::vector<std::string>& texts)
{
    return appendChoice(label, choices(texts));
}

SelectionField& FormScreen::addChoiceOfNames(const std::string& label, const std::vector<std::string>& names)
{
    std::vector<MenuCommand*> all;
    for (const std::string& name : names)
        all.push_back(&mChoices.emplace_back(name, mChoices.size()));
    return appendChoice(label, all);
}

SelectionField& FormScreen::appendChoice(const std::string& label, const std::vector<MenuCommand*>& all)
{
    auto* const field = new SelectionField(text(label).info(), nullptr, &mForm, false);
    mForm.append(field);
    for (MenuCommand* const choice : all)
        field->appendSelection(choice);
    field->setSelectionIndex(0);
    return *field;
}

std::vector<MenuCommand*> FormScreen::choices(const std::vector<std::string>& texts)
{
    std::vector<MenuCommand*> all;
    for (const std::string& key : texts)
        all.push_back(&mChoices.emplace_back(translated(key), mChoices.size()));
    return all;
}

void FormScreen::addCommand(const std::string& key, std::function<void()> run)
{
    mForm.addCommand(&mSoftKeys.emplace_back(translated(key), std::move(run)).command);
}

} // namespace deskphone
