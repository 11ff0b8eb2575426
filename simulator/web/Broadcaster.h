#pragma once

#include "simulator/web/PageConnection.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace simulator {

/// Sends frames to all open pages from a thread of its own: each page gets the latest frame when it can take one, and
/// none that lies between. Whoever reports a frame is never held up by a page.
/// Safe from any thread.
class Broadcaster {
public:
    using Pages = std::vector<std::shared_ptr<PageConnection>>;

    /// `takePicture` is called on the sending thread, for what is to be sent.
    explicit Broadcaster(std::function<host::Picture()> takePicture);
    Broadcaster(const Broadcaster&) = delete;
    Broadcaster& operator=(const Broadcaster&) = delete;
    ~Broadcaster();

    void add(std::shared_ptr<PageConnection> page);
    void remove(const PageConnection* page);
    std::size_t pageCount() const;

    /// There is a new frame.
    void frameReady();

    /// Looks again at who can take a frame.
    void pageChanged();

    /// Tells all pages that the application has ended, and takes no further ones. May be called again.
    void end();

private:
    void run();
    Pages pagesInNeed() const;
    void sendTo(const Pages& pages, std::uint32_t frame);

    std::function<host::Picture()> mTakePicture;
    mutable std::mutex mMutex;
    std::condition_variable mChanged;
    Pages mPages;
    std::uint32_t mFrame = 1;
    bool mEnding = false;
    std::thread mSender;
};

} // namespace simulator
