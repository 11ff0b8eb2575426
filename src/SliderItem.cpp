#include "DisplayAPI/SliderItem.h"

#include "DisplayAPI/SliderItemPrivateIfc.h"
#include "Operations.h"
#include "Variant.h"
#include "variants/form/SliderItemPrivate.h"

#include <utility>

namespace DisplayAPI {

namespace {

enum Request {
    CREATE = 1,
    CREATE_TRANSLATED = 2,
    DESTROY = 3,
    GET_MAX_VALUE = 4,
    SET_MAX_VALUE = 5,
    SET_MIN_VALUE = 6,
    GET_VALUE = 7,
    SET_VALUE = 8,
    SET_LABEL = 9,
    SET_LABEL_TRANSLATED = 10,
    SET_INTERVAL = 11,
    SET_READ_ONLY = 12,
    IS_READ_ONLY = 13
};

using Ifc = SliderItemPrivateIfc;

template <typename Label>
SliderItemPrivateIfc* madeByProduction(const Label& label)
{
    if (isFullPanelHardware())
        return new SliderItemPrivate(label);
    return new SliderItemPrivateWP1(label);
}

} // namespace

struct SliderItem::Ops
    : Operations<Waits<CREATE, &SliderItem::create>, Waits<CREATE_TRANSLATED, &SliderItem::createTranslated>,
                 Waits<DESTROY, &SliderItem::destroy>, Waits<GET_MAX_VALUE, &Ifc::getMaxValue>,
                 Waits<SET_MAX_VALUE, &Ifc::setMaxValue>, Waits<SET_MIN_VALUE, &Ifc::setMinValue>,
                 Waits<GET_VALUE, &Ifc::getValue>, Waits<SET_VALUE, &Ifc::setValue>,
                 Waits<SET_LABEL, taking<const std::string&>(&Ifc::setLabel)>,
                 Waits<SET_LABEL_TRANSLATED, taking<TranslationInfo*>(&Ifc::setLabel)>,
                 Waits<SET_INTERVAL, &Ifc::setInterval>, Waits<SET_READ_ONLY, &Ifc::setReadOnly>,
                 Waits<IS_READ_ONLY, &Ifc::isReadOnly, NOTHING, &GuiRequestEvent::returnValue4>> {};

/// On the GUI thread the hardware does not matter.
SliderItem::SliderItem(std::string label)
{
    name = "SliderItem";
    if (isGuiThread())
        mImplementation = new SliderItemPrivate(label);
    else
        Ops::call<CREATE>(*this, mImplementation, label);
}

SliderItem::SliderItem(TranslationInfo* label)
{
    name = "SliderItem";
    Ops::call<CREATE_TRANSLATED>(*this, mImplementation, label);
}

SliderItem::SliderItem(SliderItemPrivateIfc* implementation) : mImplementation(implementation)
{
    name = "SliderItem";
}

SliderItem::~SliderItem()
{
    Ops::call<DESTROY>(*this, mImplementation);
}

void SliderItem::create(const std::string& label)
{
    mImplementation = madeByProduction(label);
}

void SliderItem::createTranslated(TranslationInfo* label)
{
    mImplementation = madeByProduction(label);
}

void SliderItem::destroy()
{
    delete std::exchange(mImplementation, nullptr);
}

void SliderItem::processGuiRequest(GuiRequestEvent& request)
{
    Ops::carryOut(*this, mImplementation, request);
    signalComplete(request);
}

ItemPrivateIfc* SliderItem::getPrivateImpl()
{
    return mImplementation;
}

void SliderItem::localeChanged(std::string) {}

std::string SliderItem::getMaxValue()
{
    return Ops::call<GET_MAX_VALUE>(*this, mImplementation);
}

void SliderItem::setMaxValue(const std::string& value)
{
    Ops::call<SET_MAX_VALUE>(*this, mImplementation, value);
}

void SliderItem::setMinValue(const std::string& value)
{
    Ops::call<SET_MIN_VALUE>(*this, mImplementation, value);
}

std::string SliderItem::getValue()
{
    return Ops::call<GET_VALUE>(*this, mImplementation);
}

void SliderItem::setValue(const std::string& value)
{
    Ops::call<SET_VALUE>(*this, mImplementation, value);
}

void SliderItem::setLabel(const std::string& label)
{
    Ops::call<SET_LABEL>(*this, mImplementation, label);
}

void SliderItem::setLabel(TranslationInfo* label)
{
    Ops::call<SET_LABEL_TRANSLATED>(*this, mImplementation, label);
}

void SliderItem::setInterval(const std::string& value)
{
    Ops::call<SET_INTERVAL>(*this, mImplementation, value);
}

void SliderItem::setReadOnly(bool readOnly)
{
    Ops::call<SET_READ_ONLY>(*this, mImplementation, readOnly);
}

bool SliderItem::isReadOnly()
{
    return Ops::call<IS_READ_ONLY>(*this, mImplementation);
}

} // namespace DisplayAPI
