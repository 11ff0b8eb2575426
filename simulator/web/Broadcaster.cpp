#include "simulator/web/Broadcaster.h"

#include "simulator/web/ServerMessages.h"

#include <algorithm>
#include <pthread.h>

namespace simulator {

namespace {

/// How often it is looked whether the GUI thread stands still, while somebody wants to know.
constexpr std::chrono::milliseconds GLANCE(250);

template <typename Predicate>
Broadcaster::Pages chosen(const Broadcaster::Pages& pages, Predicate predicate)
{
    Broadcaster::Pages result;
    std::ranges::copy_if(pages, std::back_inserter(result), predicate);
    return result;
}

} // namespace

Broadcaster::Broadcaster(std::function<host::Picture()> takePicture, std::function<bool()> standsStill)
    : mTakePicture(std::move(takePicture)), mStandsStill(std::move(standsStill)), mSender([this] { run(); })
{
    pthread_setname_np(mSender.native_handle(), "page-sender");
}

Broadcaster::~Broadcaster()
{
    end();
}

bool Broadcaster::add(std::shared_ptr<PageConnection> page)
{
    std::lock_guard lock(mMutex);
    if (mPages.size() >= MOST_PAGES)
        return false;
    mPages.push_back(std::move(page));
    mChanged.notify_all();
    return true;
}

void Broadcaster::remove(const PageConnection* page)
{
    std::lock_guard lock(mMutex);
    std::erase_if(mPages, [page](const auto& each) { return each.get() == page; });
}

std::size_t Broadcaster::pageCount() const
{
    std::lock_guard lock(mMutex);
    return mPages.size();
}

void Broadcaster::frameReady(std::string language)
{
    std::lock_guard lock(mMutex);
    ++mFrame;
    mLanguage = std::move(language);
    mChanged.notify_all();
}

void Broadcaster::lampsChanged(std::vector<bool> lamps)
{
    std::lock_guard lock(mMutex);
    mLamps = std::move(lamps);
    mChanged.notify_all();
}

void Broadcaster::exchangeChanged(std::optional<std::vector<host::Wire::Offer>> offers)
{
    std::lock_guard lock(mMutex);
    mExchange = std::move(offers);
    mChanged.notify_all();
}

void Broadcaster::signsChanged(host::CallSigns signs)
{
    std::lock_guard lock(mMutex);
    mSigns = signs;
    mChanged.notify_all();
}

void Broadcaster::pageChanged()
{
    std::lock_guard lock(mMutex);
    mChanged.notify_all();
}

void Broadcaster::end()
{
    {
        std::lock_guard lock(mMutex);
        mEnding = true;
        mChanged.notify_all();
    }
    if (mSender.joinable())
        mSender.join();
}

void Broadcaster::run()
{
    Lock lock(mMutex);
    while (!mEnding)
        serve(lock, {mStandsStill(), mLamps, mExchange, mSigns});
    const Pages pages = mPages;
    lock.unlock();
    for (const auto& page : pages)
        page->sendLast(endedMessage());
}

/// What a page hears goes first: a GUI thread that stands still while it paints lets the picture wait.
void Broadcaster::serve(Lock& lock, const News& news)
{
    const std::uint32_t frame = mFrame;
    const std::string language = mLanguage;
    const Pages unaware = chosen(mPages, [&](const auto& page) { return page->needsToHear(news); });
    const Pages ready = chosen(mPages, [=](const auto& page) { return page->wants(frame); });
    if (unaware.empty() && ready.empty())
        return waitForChange(lock);
    lock.unlock();
    for (const auto& page : unaware)
        page->tell(news);
    if (!ready.empty()) {
        const FrameMessage message = makeFrameMessage(mTakePicture(), frame, language);
        for (const auto& page : ready)
            page->send(message);
    }
    lock.lock();
}

void Broadcaster::waitForChange(Lock& lock)
{
    if (mPages.empty())
        mChanged.wait(lock);
    else
        mChanged.wait_for(lock, GLANCE);
}

} // namespace simulator
