#include "variants/form/SliderItemPrivate.h"

#include "host/variants/form/ItemField.h"
#include "host/widgets/form/SliderField.h"
#include "utilities/Logging.h"

#include <functional>

namespace DisplayAPI {

namespace {

constexpr int REFUSED = 3; ///< the log's level

bool any(const host::Decimal&)
{
    return true;
}

/// Nothing, with a line in the log, where it is no number, or not such a one.
template <typename Fits>
std::optional<host::Decimal> numberOf(const char* operation, const std::string& text, Fits fits)
{
    const auto number = host::Decimal::fromText(text);
    if (number && std::invoke(fits, *number))
        return number;
    if (loggingOnUni())
        logAppUni("DisplayAPI::SliderItemPrivate", "./src/SliderItemPrivate", REFUSED, __LINE__,
                  "SliderItemPrivate::%s() ignores [%s]", operation, text.c_str());
    return std::nullopt;
}

} // namespace

struct SliderItemSide::Impl : ItemField<host::SliderField> {
    using ItemField::ItemField;
};

/// Sliders look alike on both panels; what differs is the form's.
SliderItemSide::SliderItemSide(TranslatedText label, Panel) : mImpl(std::make_unique<Impl>(std::move(label))) {}

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
    return mImpl->field.get();
}

void SliderItemSide::releaseOwnership()
{
    mImpl->ownership.releaseOwnership();
}

void SliderItemSide::gainOwnership()
{
    mImpl->ownership.gainOwnership();
}

void SliderItemSide::localeChanged(std::string)
{
    mImpl->showLabel();
    mImpl->changed();
}

std::string SliderItemSide::getMaxValue()
{
    return mImpl->field != nullptr ? mImpl->field->most().text() : std::string();
}

void SliderItemSide::setMaxValue(const std::string& value)
{
    const auto number = numberOf("setMaxValue", value, &any);
    if (number && mImpl->field != nullptr)
        mImpl->field->setMost(*number);
    mImpl->changed();
}

void SliderItemSide::setMinValue(const std::string& value)
{
    const auto number = numberOf("setMinValue", value, &any);
    if (number && mImpl->field != nullptr)
        mImpl->field->setLeast(*number);
    mImpl->changed();
}

std::string SliderItemSide::getValue()
{
    return mImpl->field != nullptr ? mImpl->field->number().text() : std::string();
}

void SliderItemSide::setValue(const std::string& value)
{
    const auto number = numberOf("setValue", value, &any);
    if (number && mImpl->field != nullptr)
        mImpl->field->setNumber(*number);
    mImpl->changed();
}

void SliderItemSide::setLabel(const std::string& label)
{
    mImpl->setLabel(TranslatedText(label));
}

void SliderItemSide::setLabel(TranslationInfo* label)
{
    mImpl->setLabel(TranslatedText(label));
}

void SliderItemSide::setInterval(const std::string& value)
{
    const auto number = numberOf("setInterval", value, &host::Decimal::isPositive);
    if (number && mImpl->field != nullptr)
        mImpl->field->setInterval(*number);
}

void SliderItemSide::setReadOnly(bool on)
{
    if (mImpl->field != nullptr)
        mImpl->field->setReadOnly(on);
    mImpl->changed();
}

bool SliderItemSide::isReadOnly()
{
    return mImpl->field != nullptr && mImpl->field->isReadOnly();
}

} // namespace DisplayAPI
