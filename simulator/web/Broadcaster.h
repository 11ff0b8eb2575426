#pragma once

#include "simulator/web/PageConnection.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace simulator {

/// Sends frames to all open pages from a thread of its own: each page gets the latest frame when it can take one, and
/// none that lies between. Whoever reports a frame is never held up by a page. That thread also looks whether the GUI
/// thread stands still, which cannot say so itself.
/// Safe from any thread.
class Broadcaster {
public:
    using Pages = std::vector<std::shared_ptr<PageConnection>>;

    /// `takePicture` is called on the sending thread, for what is to be sent.
    Broadcaster(std::function<host::Picture()> takePicture, std::function<bool()> standsStill);
    Broadcaster(const Broadcaster&) = delete;
    Broadcaster& operator=(const Broadcaster&) = delete;
    ~Broadcaster();

    static constexpr std::size_t MOST_PAGES = 16;

    /// Returns whether there was room for it.
    bool add(std::shared_ptr<PageConnection> page);
    void remove(const PageConnection* page);
    std::size_t pageCount() const;

    /// There is a new frame, in a telephone of this language.
    void frameReady(std::string language);

    /// The lamps of the programmable keys are these now.
    void lampsChanged(std::vector<bool> lamps);

    /// The program's exchange offers this now; nothing where it has none.
    void exchangeChanged(std::optional<std::vector<host::Wire::Offer>> offers);

    /// The lamp on the case and the handset are so now.
    void signsChanged(host::CallSigns signs);

    /// Looks again at who can take a frame.
    void pageChanged();

    /// Tells all pages that the application has ended, and takes no further ones. May be called again.
    void end();

private:
    using Lock = std::unique_lock<std::mutex>;

    void run();
    void serve(Lock& lock, const News& news);
    void waitForChange(Lock& lock);

    std::function<host::Picture()> mTakePicture;
    std::function<bool()> mStandsStill;
    mutable std::mutex mMutex;
    std::condition_variable mChanged;
    Pages mPages;
    std::uint32_t mFrame = 1;
    std::string mLanguage;
    std::vector<bool> mLamps;
    std::optional<std::vector<host::Wire::Offer>> mExchange;
    host::CallSigns mSigns;
    bool mEnding = false;
    std::thread mSender;
};

} // namespace simulator
