#include "simulator/core/DisplayedWords.h"

#include "DisplayAPI/Display.h"
#include "DisplayAPI/PartyText.h"
#include "simulator/web/ServerMessages.h"
#include "utilities/ICC.h"
#include "widgets/KestrelApplication.h"

namespace simulator {

ScreenWords displayedWords()
{
    DisplayAPI::Display* const display = DisplayAPI::Display::latest();
    return {display != nullptr ? display->serialise() : std::string(), displayedLanguage()};
}

std::string displayedLanguage()
{
    const auto* application = KestrelApplication::getCurrentApplication();
    return application != nullptr ? languageTag(ICC::fromUNICODEtoUTF8(application->getLocale())) : std::string();
}

std::string displayedText(const std::string& key)
{
    return DisplayAPI::LatestTranslator::instance()->translate(key);
}

} // namespace simulator
