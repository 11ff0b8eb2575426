#include "apps/deskphone/Telephone.h"

#include "DisplayAPI/Display.h"

#include <utility>

namespace deskphone {

namespace {

constexpr int AT_ONCE = 0;
constexpr unsigned int MESSAGE_MS = 2000;

} // namespace

Telephone::Telephone(DisplayAPI::Display& display) : mDisplay(display), mLanguageChange(AT_ONCE)
{
    mLanguageChange.addEventListener(this);
}

std::string Telephone::useLanguage(const std::string& code)
{
    std::string complaint = mLanguages.use(code);
    if (complaint.empty())
        mLanguageChange.start(AT_ONCE);
    return complaint;
}

void Telephone::addLanguageListener(std::function<void()> listener)
{
    mLanguageListeners.push_back(std::move(listener));
}

void Telephone::tell(const std::string& message)
{
    mDisplay.setStatusMessage(message, MESSAGE_MS);
}

void Telephone::timerExpired()
{
    mDisplay.setTranslator(&mLanguages);
    mDisplay.localeChanged(mLanguages.current().locale);
    for (const auto& listener : mLanguageListeners)
        listener();
}

} // namespace deskphone
