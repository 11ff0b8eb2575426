#include "variants/form/TextFieldPrivate.h"

#include "doubles/ItemSide.h"

namespace DisplayAPI {

/// The recording text field.
struct TextFieldSide::Impl : doubles::ItemSide {
    using ItemSide::ItemSide;
};

TextFieldSide::TextFieldSide(TranslatedText label, TextField::IconImage icon, TranslatedText text,
                             TextField::FieldType type, bool readOnly, Panel panel)
    : mImpl(std::make_unique<Impl>("TextFieldPrivate", panel))
{
    mImpl->made(Impl::noted(label), static_cast<int>(icon), Impl::noted(text), static_cast<int>(type), readOnly);
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
    return nullptr;
}

void TextFieldSide::releaseOwnership()
{
    mImpl->note("releaseOwnership");
}

void TextFieldSide::gainOwnership()
{
    mImpl->note("gainOwnership");
}

void TextFieldSide::localeChanged(std::string locale)
{
    mImpl->note("localeChanged", locale);
}

int TextFieldSide::size()
{
    mImpl->note("size");
    return 7;
}

std::string TextFieldSide::getString()
{
    mImpl->note("getString");
    return "string";
}

void TextFieldSide::setString(TranslationInfo* text)
{
    mImpl->note("setString", text);
}

void TextFieldSide::setString(const std::string& text)
{
    mImpl->note("setString", text);
}

void TextFieldSide::setLabel(TranslationInfo* label)
{
    mImpl->note("setLabel", label);
}

void TextFieldSide::setLabel(const std::string& label)
{
    mImpl->note("setLabel", label);
}

std::string TextFieldSide::getLabel()
{
    mImpl->note("getLabel");
    return "label";
}

void TextFieldSide::setIcon(TextField::IconImage icon)
{
    mImpl->note("setIcon", static_cast<int>(icon));
}

void TextFieldSide::setFieldType(TextField::FieldType type)
{
    mImpl->note("setFieldType", static_cast<int>(type));
}

void TextFieldSide::setMaxFieldLength(int characters)
{
    mImpl->note("setMaxFieldLength", characters);
}

void TextFieldSide::setInformAppOnOk(Command* command)
{
    mImpl->note("setInformAppOnOk", command);
}

void TextFieldSide::setReadOnlyMode(bool on)
{
    mImpl->note("setReadOnlyMode", on);
}

bool TextFieldSide::getReadOnlyMode()
{
    mImpl->note("getReadOnlyMode");
    return true;
}

Command* TextFieldSide::commandForOk()
{
    return nullptr;
}

} // namespace DisplayAPI
