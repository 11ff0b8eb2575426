#include "DisplayAPI/TextField.h"

#include "DisplayAPI/Form.h"
#include "DisplayAPI/TextFieldPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/form/TextFieldPrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    DESTROY = 1,
    SIZE = 2,
    GET_STRING = 3,
    SET_STRING = 4,
    SET_LABEL = 5,
    GET_LABEL = 6,
    SET_ICON = 7,
    SET_FIELD_TYPE = 8,
    SET_MAX_FIELD_LENGTH = 9,
    SET_INFORM_APP_ON_OK = 10,
    SET_READ_ONLY_MODE = 11,
    GET_READ_ONLY_MODE = 12
};

using Ifc = TextFieldPrivateIfc;

template <typename... Args>
TextFieldPrivateIfc* madeForPanel(const Args&... args)
{
    if (isFullPanel())
        return new TextFieldPrivate(args...);
    return new TextFieldPrivateWP1(args...);
}

} // namespace

std::atomic<int> TextField::itemCount{0};

/// Translated and plain texts share a code, which tells them apart by the translation: null makes them plain.
struct TextField::Ops
    : Operations<Waits<CREATE, &TextField::create>, Waits<DESTROY, &TextField::destroy>, Waits<SIZE, &Ifc::size, -1>,
                 Waits<GET_STRING, &Ifc::getString>, Waits<SET_STRING, &TextField::applyString>,
                 Waits<SET_LABEL, &TextField::applyLabel>, Waits<GET_LABEL, &Ifc::getLabel>,
                 Waits<SET_ICON, &Ifc::setIcon>, Waits<SET_FIELD_TYPE, &Ifc::setFieldType>,
                 Waits<SET_MAX_FIELD_LENGTH, &Ifc::setMaxFieldLength>,
                 Waits<SET_INFORM_APP_ON_OK, &Ifc::setInformAppOnOk>, Waits<SET_READ_ONLY_MODE, &Ifc::setReadOnlyMode>,
                 Waits<GET_READ_ONLY_MODE, &Ifc::getReadOnlyMode>> {};

TextField::TextField(IconImage icon, FieldType type) : mId(++itemCount), mIcon(icon), mFieldType(type)
{
    name = "TextField";
}

TextField::TextField(TranslationInfo* label, IconImage icon, TranslationInfo* text, FieldType type, bool readOnly)
    : TextField(icon, type)
{
    if (isGuiThread())
        mImplementation = madeForPanel(label, icon, text, type, readOnly);
    else
        Ops::call<CREATE>(*this, mImplementation, label, icon, text, type, readOnly, std::string(), std::string());
}

TextField::TextField(std::string label, IconImage icon, std::string text, FieldType type) : TextField(icon, type)
{
    Ops::call<CREATE>(*this, mImplementation, nullptr, icon, nullptr, type, false, label, text);
}

TextField::~TextField()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void TextField::create(TranslationInfo* label, IconImage icon, TranslationInfo* text, FieldType type, bool readOnly,
                       const std::string& plainLabel, const std::string& plainText)
{
    if (mImplementation != nullptr)
        return;
    if (label != nullptr)
        mImplementation = madeForPanel(label, icon, text, type, readOnly);
    else
        mImplementation = madeForPanel(plainLabel, icon, plainText, type);
}

void TextField::destroy()
{
    delete std::exchange(mImplementation, nullptr);
}

void TextField::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

std::string TextField::getType()
{
    return mType;
}

int TextField::getID()
{
    return mId;
}

ItemPrivateIfc* TextField::getPrivateImpl()
{
    return mImplementation;
}

void TextField::localeChanged(std::string locale)
{
    if (mImplementation != nullptr)
        mImplementation->localeChanged(std::move(locale));
}

void TextField::applyString(TranslationInfo* translation, const std::string& text)
{
    if (mImplementation == nullptr)
        return;
    if (translation != nullptr)
        mImplementation->setString(translation);
    else
        mImplementation->setString(text);
}

/// Null is a translation where it is said on the GUI thread, and a plain text where it comes in a record.
void TextField::setString(TranslationInfo* text)
{
    if (!isGuiThread())
        Ops::call<SET_STRING>(*this, mImplementation, text, std::string());
    else if (mImplementation != nullptr)
        mImplementation->setString(text);
}

void TextField::setString(const std::string& text)
{
    Ops::call<SET_STRING>(*this, mImplementation, nullptr, text);
}

std::string TextField::getString()
{
    return Ops::call<GET_STRING>(*this, mImplementation);
}

void TextField::applyLabel(TranslationInfo* translation, const std::string& label)
{
    if (mImplementation == nullptr)
        return;
    if (translation != nullptr)
        mImplementation->setLabel(translation);
    else
        mImplementation->setLabel(label);
}

void TextField::setLabel(TranslationInfo* label)
{
    if (!isGuiThread())
        Ops::call<SET_LABEL>(*this, mImplementation, label, std::string());
    else if (mImplementation != nullptr)
        mImplementation->setLabel(label);
}

void TextField::setLabel(const std::string& label)
{
    Ops::call<SET_LABEL>(*this, mImplementation, nullptr, label);
}

std::string TextField::getLabel()
{
    return Ops::call<GET_LABEL>(*this, mImplementation);
}

int TextField::size()
{
    return Ops::call<SIZE>(*this, mImplementation);
}

void TextField::setIcon(IconImage icon)
{
    Ops::call<SET_ICON>(*this, mImplementation, icon);
}

void TextField::setFieldType(FieldType type)
{
    Ops::call<SET_FIELD_TYPE>(*this, mImplementation, type);
}

void TextField::setMaxFieldLength(int characters)
{
    Ops::call<SET_MAX_FIELD_LENGTH>(*this, mImplementation, characters);
}

void TextField::setReadOnlyMode(bool on)
{
    Ops::call<SET_READ_ONLY_MODE>(*this, mImplementation, on);
}

bool TextField::getReadOnlyMode()
{
    return Ops::call<GET_READ_ONLY_MODE>(*this, mImplementation);
}

void TextField::setInformAppOnOk(Command* command)
{
    Ops::call<SET_INFORM_APP_ON_OK>(*this, mImplementation, command);
}

void TextField::setInformAppOnOk(bool on)
{
    setInformAppOnOk(on ? Form::OK_COMMAND() : nullptr);
}

} // namespace DisplayAPI
