#include "simulator/web/Broadcaster.h"

#include <algorithm>
#include <pthread.h>

namespace simulator {

Broadcaster::Broadcaster(std::function<host::Picture()> takePicture)
    : mTakePicture(std::move(takePicture)), mSender([this] { run(); })
{
    pthread_setname_np(mSender.native_handle(), "page-sender");
}

Broadcaster::~Broadcaster()
{
    end();
}

void Broadcaster::add(std::shared_ptr<PageConnection> page)
{
    std::lock_guard lock(mMutex);
    mPages.push_back(std::move(page));
    mChanged.notify_all();
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

void Broadcaster::frameReady()
{
    std::lock_guard lock(mMutex);
    ++mFrame;
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
    std::unique_lock lock(mMutex);
    while (!mEnding) {
        const Pages pages = pagesInNeed();
        if (pages.empty()) {
            mChanged.wait(lock);
            continue;
        }
        const std::uint32_t frame = mFrame;
        lock.unlock();
        sendTo(pages, frame);
        lock.lock();
    }
    const Pages pages = mPages;
    lock.unlock();
    for (const auto& page : pages)
        page->sendEnd();
}

Broadcaster::Pages Broadcaster::pagesInNeed() const
{
    Pages pages;
    std::ranges::copy_if(mPages, std::back_inserter(pages), [this](const auto& page) { return page->wants(mFrame); });
    return pages;
}

void Broadcaster::sendTo(const Pages& pages, std::uint32_t frame)
{
    const FrameMessage message = makeFrameMessage(mTakePicture(), frame);
    for (const auto& page : pages)
        page->send(message);
}

} // namespace simulator
