#include "CheckBoxFieldPrivate.h"

namespace DisplayAPI {

CheckBoxFieldPrivate::CheckBoxFieldPrivate(const std::string&, const std::string&, Image*) {}

CheckBoxFieldPrivate::CheckBoxFieldPrivate(TranslationInfo*, TranslationInfo*, Image*) {}

Image* CheckBoxFieldPrivate::getImage()
{
    return nullptr;
}

std::string CheckBoxFieldPrivate::getString()
{
    return {};
}

bool CheckBoxFieldPrivate::isChecked()
{
    return false;
}

void CheckBoxFieldPrivate::swapChecked() {}

void CheckBoxFieldPrivate::setChecked(bool) {}

PegThing* CheckBoxFieldPrivate::getWidget()
{
    return nullptr;
}

void CheckBoxFieldPrivate::releaseOwnership()
{
    mOwned = false;
}

void CheckBoxFieldPrivate::gainOwnership()
{
    mOwned = true;
}

void CheckBoxFieldPrivate::localeChanged(std::string) {}

} // namespace DisplayAPI
