#include "apps/deskphone/Telephone.h"

#include "DisplayAPI/Display.h"
#include "kit/OnGuiThread.h"

#include <utility>

namespace deskphone {

namespace {

constexpr int AT_ONCE = 0;
constexpr unsigned int MESSAGE_MS = 2000;

std::vector<host::Wire::Offer> offersOf(const std::vector<host::Language>& languages)
{
    std::vector<host::Wire::Offer> offers;
    for (const host::Language& language : languages)
        offers.push_back({language.name, language.code});
    return offers;
}

} // namespace

Telephone::Telephone(DisplayAPI::Display& display)
    : mDisplay(display), mLines(display,
                                [this](DisplayAPI::Displayable* current) {
                                    for (const auto& listener : mScreenListeners)
                                        listener(current);
                                }),
      mStatus(*this, mLines), mLanguageChange(AT_ONCE), mNumberCopied(&mLanguages, "Number.copied"),
      mLanguageWire(
          "language", [this](std::string_view code) { return useLanguage(std::string(code)); },
          offersOf(mLanguages.available()))
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

void Telephone::useDateFormat(const std::string& format)
{
    mDisplay.dateFormatChanged(format);
    renewTexts();
}

void Telephone::useTimeFormat(const std::string& format)
{
    mDisplay.timeFormatChanged(format);
    renewTexts();
}

void Telephone::addLanguageListener(std::function<void()> listener)
{
    mLanguageListeners.push_back(std::move(listener));
}

void Telephone::addScreenListener(DisplayAPI::kit::StatusLines::ScreenListener listener)
{
    mScreenListeners.push_back(std::move(listener));
}

void Telephone::copy(const std::string& number)
{
    {
        const std::lock_guard lock(mMutex);
        mCopied = number;
    }
    tell(mNumberCopied.get());
}

std::string Telephone::copied() const
{
    const std::lock_guard lock(mMutex);
    return mCopied;
}

void Telephone::tell(const std::string& message)
{
    mDisplay.setStatusMessage(message, MESSAGE_MS);
}

void Telephone::timerExpired()
{
    mDisplay.setTranslator(&mLanguages);
    renewTexts();
    for (const auto& listener : mLanguageListeners)
        listener();
}

void Telephone::show(DisplayAPI::Displayable& screen, Lines lines)
{
    // At once, so that nobody sees the one without the other.
    DisplayAPI::kit::onGuiThread([&] {
        mDisplay.setCurrent(&screen);
        mStatus.setVisible(lines == Lines::ABOVE);
    });
}

/// With the locale every screen looks its texts up again, dates and times among them.
void Telephone::renewTexts()
{
    mDisplay.localeChanged(mLanguages.current().locale);
}

} // namespace deskphone
