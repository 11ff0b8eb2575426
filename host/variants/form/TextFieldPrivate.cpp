#include "variants/form/TextFieldPrivate.h"

#include "DisplayAPI/Command.h"
#include "host/variants/form/FieldKind.h"
#include "host/variants/form/ItemField.h"
#include "host/widgets/form/TextEntryField.h"
#include "host/widgets/telephony/PhonebookIcons.h"
#include "utilities/ICC.h"

#include <optional>
#include <utility>

namespace DisplayAPI {

namespace {

constexpr int MOST_IN_A_LINE = 255; ///< where the application does not say it

} // namespace

struct TextFieldSide::Impl : ItemField<host::TextEntryField> {
    using ItemField::ItemField;

    std::string string() const { return field != nullptr ? ICC::fromUNICODEtoUTF8(field->text()) : std::string(); }

    void setText(TranslatedText newText);
    void showText();
    void setType(TextField::FieldType newType);
    void setMaximum(int characters);
    void translate();

    TranslatedText text;
    std::string shown; ///< what has become of the text in the field
    Command* onOk = nullptr;
    std::optional<TextField::FieldType> type;
    int maximum = MOST_IN_A_LINE;
    const std::shared_ptr<void> life = std::make_shared<int>();

private:
    template <typename Change>
    void restrict(Change change);
};

void TextFieldSide::Impl::setText(TranslatedText newText)
{
    text = std::move(newText);
    showText();
}

void TextFieldSide::Impl::showText()
{
    if (field == nullptr)
        return;
    field->setText(text.shown());
    shown = string();
}

/// What the user has typed stays.
void TextFieldSide::Impl::translate()
{
    showLabel();
    if (text.isTranslated() && string() == shown && shown != text.text())
        showText();
}

/// What this cuts out of the text is not the user's doing: a translation goes on following the language.
template <typename Change>
void TextFieldSide::Impl::restrict(Change change)
{
    if (field == nullptr)
        return;
    const bool isEdited = string() != shown;
    change(*field);
    if (!isEdited)
        shown = string();
}

/// The same once more leaves the cursor and the input mode alone.
void TextFieldSide::Impl::setType(TextField::FieldType newType)
{
    if (std::exchange(type, newType) == newType)
        return;
    restrict([&](host::TextEntryField& entry) { entry.setKind(kindOf(newType)); });
}

void TextFieldSide::Impl::setMaximum(int characters)
{
    maximum = characters;
    restrict([&](host::TextEntryField& entry) { entry.setMaximum(characters); });
}

/// Text fields look alike on both panels; what differs is the form's.
TextFieldSide::TextFieldSide(TranslatedText label, TextField::IconImage icon, TranslatedText text,
                             TextField::FieldType type, bool readOnly, Panel)
    : mImpl(std::make_unique<Impl>(std::move(label)))
{
    mImpl->field->setIcon(host::phonebookIcon(icon));
    mImpl->field->setReadOnly(readOnly);
    mImpl->setType(type);
    mImpl->setMaximum(MOST_IN_A_LINE);
    mImpl->setText(std::move(text));
}

TextFieldSide::~TextFieldSide() = default;

TextFieldPrivate::TextFieldPrivate(TranslationInfo* label, TextField::IconImage icon, TranslationInfo* text,
                                   TextField::FieldType type, bool readOnly)
    : TextFieldSide(TranslatedText(label), icon, TranslatedText(text), type, readOnly, Panel::FULL)
{
}

TextFieldPrivate::TextFieldPrivate(const std::string& label, TextField::IconImage icon, const std::string& text,
                                   TextField::FieldType type)
    : TextFieldSide(TranslatedText(label), icon, TranslatedText(text), type, false, Panel::FULL)
{
}

TextFieldPrivateWP1::TextFieldPrivateWP1(TranslationInfo* label, TextField::IconImage icon, TranslationInfo* text,
                                         TextField::FieldType type, bool readOnly)
    : TextFieldSide(TranslatedText(label), icon, TranslatedText(text), type, readOnly, Panel::SMALL)
{
}

TextFieldPrivateWP1::TextFieldPrivateWP1(const std::string& label, TextField::IconImage icon, const std::string& text,
                                         TextField::FieldType type)
    : TextFieldSide(TranslatedText(label), icon, TranslatedText(text), type, false, Panel::SMALL)
{
}

PegThing* TextFieldSide::getWidget()
{
    return mImpl->field.get();
}

void TextFieldSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void TextFieldSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void TextFieldSide::localeChanged(std::string)
{
    mImpl->translate();
    mImpl->changed();
}

int TextFieldSide::size()
{
    return mImpl->field != nullptr ? static_cast<int>(mImpl->field->text().length()) : -1;
}

std::string TextFieldSide::getString()
{
    return mImpl->string();
}

void TextFieldSide::setString(TranslationInfo* text)
{
    mImpl->setText(TranslatedText(text));
    mImpl->changed();
}

void TextFieldSide::setString(const std::string& text)
{
    mImpl->setText(TranslatedText(text));
    mImpl->changed();
}

void TextFieldSide::setLabel(TranslationInfo* label)
{
    mImpl->setLabel(TranslatedText(label));
}

void TextFieldSide::setLabel(const std::string& label)
{
    mImpl->setLabel(TranslatedText(label));
}

std::string TextFieldSide::getLabel()
{
    return mImpl->label.text();
}

void TextFieldSide::setIcon(TextField::IconImage icon)
{
    if (mImpl->field != nullptr)
        mImpl->field->setIcon(host::phonebookIcon(icon));
    mImpl->changed();
}

void TextFieldSide::setFieldType(TextField::FieldType type)
{
    mImpl->setType(type);
    mImpl->changed();
}

void TextFieldSide::setMaxFieldLength(int characters)
{
    mImpl->setMaximum(characters);
    mImpl->changed();
}

void TextFieldSide::setInformAppOnOk(Command* command)
{
    mImpl->onOk = command;
}

void TextFieldSide::setReadOnlyMode(bool on)
{
    if (mImpl->field != nullptr)
        mImpl->field->setReadOnly(on);
    mImpl->changed();
}

bool TextFieldSide::getReadOnlyMode()
{
    return mImpl->field != nullptr && mImpl->field->isReadOnly();
}

Command* TextFieldSide::commandForOk()
{
    return Command::exists(mImpl->onOk) ? mImpl->onOk : nullptr;
}

TextField::FieldType TextFieldSide::fieldType() const
{
    return mImpl->type.value_or(TextField::TEXT);
}

int TextFieldSide::maxFieldLength() const
{
    return mImpl->maximum;
}

std::weak_ptr<void> TextFieldSide::life() const
{
    return mImpl->life;
}

void TextFieldSide::edit(const std::string& text)
{
    mImpl->setText(TranslatedText(text));
}

} // namespace DisplayAPI
