#include "DisplayAPI/CheckBoxField.h"

#include "CheckBoxFieldPrivate.h"
#include "OnGuiThread.h"
#include "Operations.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 0,
    CREATE_TRANSLATED = 1,
    GET_IMAGE = 2,
    GET_STRING = 3,
    IS_CHECKED = 4,
    SWAP_CHECKED = 5,
    SET_CHECKED = 6
};

using Ifc = CheckBoxFieldPrivateIfc;

} // namespace

struct CheckBoxField::Ops
    : Operations<Waits<CREATE, &CheckBoxField::create>, Waits<CREATE_TRANSLATED, &CheckBoxField::createTranslated>,
                 Waits<GET_IMAGE, &Ifc::getImage>, Waits<GET_STRING, &Ifc::getString>,
                 Waits<IS_CHECKED, &Ifc::isChecked>, Waits<SWAP_CHECKED, &Ifc::swapChecked>,
                 Waits<SET_CHECKED, &Ifc::setChecked>> {};

CheckBoxField::CheckBoxField(TranslationInfo* label, TranslationInfo* text, Image* image)
{
    name = "CheckBoxField";
    Ops::call<CREATE_TRANSLATED>(*this, mImplementation, label, text, image);
}

CheckBoxField::CheckBoxField(std::string label, std::string text, Image* image)
{
    name = "CheckBoxField";
    Ops::call<CREATE>(*this, mImplementation, label, text, image);
}

/// No code means this. Where nobody runs the queue any more nobody uses it either.
CheckBoxField::~CheckBoxField()
{
    onGuiThread([this] { delete std::exchange(mImplementation, nullptr); });
    delete mImplementation;
}

void CheckBoxField::create(const std::string& label, const std::string& text, Image* image)
{
    delete std::exchange(mImplementation, new CheckBoxFieldPrivate(label, text, image));
}

void CheckBoxField::createTranslated(TranslationInfo* label, TranslationInfo* text, Image* image)
{
    delete std::exchange(mImplementation, new CheckBoxFieldPrivate(label, text, image));
}

void CheckBoxField::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

void CheckBoxField::setReadOnly(bool) {}

bool CheckBoxField::isReadOnly()
{
    return false;
}

ItemPrivateIfc* CheckBoxField::getPrivateImpl()
{
    return mImplementation;
}

void CheckBoxField::localeChanged(std::string) {}

Image* CheckBoxField::getImage()
{
    return Ops::call<GET_IMAGE>(*this, mImplementation);
}

std::string CheckBoxField::getString()
{
    return Ops::call<GET_STRING>(*this, mImplementation);
}

bool CheckBoxField::isChecked()
{
    return Ops::call<IS_CHECKED>(*this, mImplementation);
}

void CheckBoxField::swapChecked()
{
    Ops::call<SWAP_CHECKED>(*this, mImplementation);
}

void CheckBoxField::setChecked(bool on)
{
    Ops::call<SET_CHECKED>(*this, mImplementation, on);
}

} // namespace DisplayAPI
