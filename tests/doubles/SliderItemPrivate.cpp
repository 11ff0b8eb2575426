#include "variants/form/SliderItemPrivate.h"

#include "doubles/ItemSide.h"

namespace DisplayAPI {

/// The recording slider.
struct SliderItemSide::Impl : doubles::ItemSide {
    using ItemSide::ItemSide;
};

SliderItemSide::SliderItemSide(TranslatedText label, Panel panel)
    : mImpl(std::make_unique<Impl>("SliderItemPrivate", panel))
{
    mImpl->made(Impl::noted(label));
}

SliderItemSide::~SliderItemSide() = default;

SliderItemPrivate::SliderItemPrivate(const std::string& label) : SliderItemSide(TranslatedText(label), Panel::FULL) {}

SliderItemPrivate::SliderItemPrivate(TranslationInfo* label) : SliderItemSide(TranslatedText(label), Panel::FULL) {}

SliderItemPrivateWP1::SliderItemPrivateWP1(const std::string& label)
    : SliderItemSide(TranslatedText(label), Panel::SMALL)
{
}

SliderItemPrivateWP1::SliderItemPrivateWP1(TranslationInfo* label) : SliderItemSide(TranslatedText(label), Panel::SMALL)
{
}

PegThing* SliderItemSide::getWidget()
{
    return nullptr;
}

void SliderItemSide::releaseOwnership()
{
    mImpl->note("releaseOwnership");
}

void SliderItemSide::gainOwnership()
{
    mImpl->note("gainOwnership");
}

void SliderItemSide::localeChanged(std::string locale)
{
    mImpl->note("localeChanged", locale);
}

std::string SliderItemSide::getMaxValue()
{
    mImpl->note("getMaxValue");
    return "max";
}

void SliderItemSide::setMaxValue(const std::string& value)
{
    mImpl->note("setMaxValue", value);
}

void SliderItemSide::setMinValue(const std::string& value)
{
    mImpl->note("setMinValue", value);
}

std::string SliderItemSide::getValue()
{
    mImpl->note("getValue");
    return "value";
}

void SliderItemSide::setValue(const std::string& value)
{
    mImpl->note("setValue", value);
}

void SliderItemSide::setLabel(const std::string& label)
{
    mImpl->note("setLabel", label);
}

void SliderItemSide::setLabel(TranslationInfo* label)
{
    mImpl->note("setLabel", label);
}

void SliderItemSide::setInterval(const std::string& value)
{
    mImpl->note("setInterval", value);
}

void SliderItemSide::setReadOnly(bool on)
{
    mImpl->note("setReadOnly", on);
}

bool SliderItemSide::isReadOnly()
{
    mImpl->note("isReadOnly");
    return true;
}

} // namespace DisplayAPI
