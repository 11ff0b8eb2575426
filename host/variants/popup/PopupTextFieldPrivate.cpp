#include "variants/popup/PopupTextFieldPrivate.h"

#include "DisplayAPI/MenuCommand.h"
#include "DisplayAPI/Rectangles.h"
#include "DisplayAPI/ScreenText.h"
#include "host/variants/form/FieldKind.h"
#include "host/variants/popup/EditPopup.h"
#include "utilities/ICC.h"
#include "variants/form/TextFieldPrivate.h"

#include <optional>

namespace DisplayAPI {

/// A text-field popup's data. Its field, which may go before it, has the text that is typed here.
struct PopupTextFieldSide::Impl : public EditPopup {
    Impl(PopupTextFieldSide& popup, PopupTextField* facade, TextField* textField, bool wayBack);

    void opened() override;
    std::string asText(const std::vector<DisplayAPIUtils::Rect>& visible) const override;

    /// Null where there is none, or none any more.
    TextFieldSide* edited() const { return mLife.expired() ? nullptr : mEdited; }

    /// What it shows, or would show if it came up now.
    std::string text();
    void clearText();
    void setLabel(TranslationInfo* newLabel);
    void setType(TextField::FieldType newType);

protected:
    void languageChanged() override;
    void goBack() override;
    void userHasEdited() override;

private:
    void takeFromField();
    void restrict(host::EditKind kind);
    void showLabel();
    void write();

    const bool mLeftGoesBack;
    TextField* const mField;
    TextFieldSide* mEdited = nullptr;
    std::weak_ptr<void> mLife; ///< of the field's side
    std::optional<TranslatedText> mLabel;
    std::optional<TextField::FieldType> mType;
};

PopupTextFieldSide::Impl::Impl(PopupTextFieldSide& popup, PopupTextField* facade, TextField* textField, bool wayBack)
    : EditPopup(popup, facade, PopupTextField::HIDDEN_COMMAND()), mLeftGoesBack(wayBack), mField(textField)
{
    field->line().setLeft(host::EditLine::Left::MOVES);
    field->line().setKind(host::EditKind::TEXT);
    if (textField != nullptr)
        mEdited = dynamic_cast<TextFieldSide*>(textField->getPrivateImpl());
    if (mEdited != nullptr)
        mLife = mEdited->life();
    takeFromField();
}

void PopupTextFieldSide::Impl::opened()
{
    takeFromField();
    EditPopup::opened();
}

/// The label and the type are the popup's where the application has set them here.
void PopupTextFieldSide::Impl::takeFromField()
{
    TextFieldSide* const side = edited();
    if (side == nullptr || box == nullptr)
        return;
    host::EditLine& line = field->line();
    line.setMaximum(side->maxFieldLength());
    line.setKind(kindOf(mType.value_or(side->fieldType())));
    line.setReadOnly(side->getReadOnlyMode());
    line.setText(ICC::fromUTF8toUNICODE(side->getString()));
    showLabel();
}

/// On two lines the header has no room: there the label stands before the text.
void PopupTextFieldSide::Impl::showLabel()
{
    if (box == nullptr)
        return;
    PegString label;
    if (mLabel)
        label = mLabel->shown();
    else if (edited() != nullptr)
        label = ICC::fromUTF8toUNICODE(edited()->getLabel());
    if (host::hasTwoLines())
        field->setPrefix(std::move(label));
    else
        box->setHeader(std::move(label));
}

std::string PopupTextFieldSide::Impl::text()
{
    if (!isOnScreen())
        takeFromField();
    return box != nullptr ? ICC::fromUNICODEtoUTF8(field->line().text()) : std::string();
}

/// What lies below shows it as well.
void PopupTextFieldSide::Impl::write()
{
    if (edited() != nullptr)
        edited()->edit(ICC::fromUNICODEtoUTF8(field->line().text()));
}

void PopupTextFieldSide::Impl::clearText()
{
    if (box == nullptr)
        return;
    field->line().setText({});
    if (isOnScreen() || edited() == nullptr)
        write();
    else
        edited()->setString(std::string()); // tells those who see the field, as the popup does where it is seen
    changed();
}

void PopupTextFieldSide::Impl::setLabel(TranslationInfo* newLabel)
{
    mLabel = TranslatedText(newLabel);
    showLabel();
    changed();
}

void PopupTextFieldSide::Impl::setType(TextField::FieldType newType)
{
    mType = newType;
    if (box != nullptr)
        restrict(kindOf(newType));
    changed();
}

/// What this cuts out of the text on the screen is no more the field's.
void PopupTextFieldSide::Impl::restrict(host::EditKind kind)
{
    const PegString before = field->line().text();
    field->line().setKind(kind);
    if (isOnScreen() && field->line().text() != before)
        write();
}

void PopupTextFieldSide::Impl::languageChanged()
{
    commands.translate();
    showLabel();
    changed();
}

void PopupTextFieldSide::Impl::goBack()
{
    if (mLeftGoesBack)
        leave();
}

void PopupTextFieldSide::Impl::userHasEdited()
{
    write();
    tellEdited(edited() != nullptr ? mField : nullptr);
}

std::string PopupTextFieldSide::Impl::asText(const std::vector<DisplayAPIUtils::Rect>& visible) const
{
    const auto utf8 = [](const PegString& text) { return ICC::fromUNICODEtoUTF8(text); };
    std::string contents;
    if (isVisible(box->headerArea(), visible))
        contents += screen::caption(utf8(box->header()));
    if (isVisible(field->Area(), visible))
        contents += screen::textLine(0, utf8(field->prefix()) + utf8(field->line().masked()));
    return screen::object("PopupTextField", contents + commands.asText(visible));
}

PopupTextFieldSide::PopupTextFieldSide(PopupTextField* owner, TextField* field, bool leftGoesBack, Panel)
    : mImpl(std::make_unique<Impl>(*this, owner, field, leftGoesBack))
{
}

PopupTextFieldSide::~PopupTextFieldSide() = default;

PopupTextFieldPrivate::PopupTextFieldPrivate(PopupTextField* owner, TextField* field)
    : PopupTextFieldSide(owner, field, true, Panel::FULL)
{
}

PopupTextFieldPrivateWP1::PopupTextFieldPrivateWP1(PopupTextField* owner, TextField* field, bool leftGoesBack)
    : PopupTextFieldSide(owner, field, leftGoesBack, Panel::SMALL)
{
}

PopupSide::Popup& PopupTextFieldSide::popup()
{
    return *mImpl;
}

void PopupTextFieldSide::lostFocus()
{
    mImpl->letGo();
}

std::string PopupTextFieldSide::getText()
{
    return mImpl->text();
}

void PopupTextFieldSide::clear()
{
    mImpl->clearText();
}

void PopupTextFieldSide::addCommand(MenuCommand* command)
{
    mImpl->add(command);
}

void PopupTextFieldSide::clearCommands()
{
    mImpl->clear();
}

void PopupTextFieldSide::setDefaultCommand(MenuCommand* command)
{
    mImpl->setDefault(command);
}

void PopupTextFieldSide::dismiss()
{
    mImpl->leave();
}

void PopupTextFieldSide::setLabel(TranslationInfo* label)
{
    mImpl->setLabel(label);
}

void PopupTextFieldSide::setFieldType(TextField::FieldType type)
{
    mImpl->setType(type);
}

void PopupTextFieldSide::setTimeout(int milliseconds)
{
    mImpl->setTimeout(milliseconds);
}

void PopupTextFieldSide::addCommandListener(CommandListener* listener)
{
    DisplayablePrivate::addCommandListener(listener);
}

void PopupTextFieldSide::removeCommandListener(CommandListener* listener)
{
    DisplayablePrivate::removeCommandListener(listener);
}

void PopupTextFieldSide::addItemStateListener(ItemStateListener* listener)
{
    mImpl->addListener(listener);
}

void PopupTextFieldSide::removeItemStateListener(ItemStateListener* listener)
{
    mImpl->removeListener(listener);
}

} // namespace DisplayAPI
