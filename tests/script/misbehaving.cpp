// An application that does one thing wrong when the user chooses the first row: `misbehaving
// crash|exit|exit-at-once|leave|linger|quit|stall [SECONDS]`. `deaf` never runs its loop, `never` does all well.
// SIGUSR1 ends a stall.

#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "host/Phone.h"
#include "host/toolkit/Loop.h"
#include "kit/Subscription.h"
#include "utilities/TranslationInfo.h"
#include "utilities/TranslatorIfc.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <semaphore.h>
#include <string_view>
#include <thread>
#include <unistd.h>

using namespace DisplayAPI;

namespace {

sem_t endOfStall; // the only thing that a signal may wake

void wait(std::chrono::seconds time)
{
    timespec end{};
    clock_gettime(CLOCK_REALTIME, &end);
    end.tv_sec += time.count();
    while (sem_timedwait(&endOfStall, &end) != 0 && errno == EINTR) {
    }
}

/// Keeps the GUI thread, which asks it for a text, waiting for seconds.
class SlowTranslator : public TranslatorIfc {
public:
    explicit SlowTranslator(std::chrono::seconds time) : mTime(time) {}

    std::string translate(const std::string&) override
    {
        wait(mTime);
        return "It took its time";
    }

private:
    std::chrono::seconds mTime;
};

class Wrongdoer {
public:
    Wrongdoer(std::string_view way, std::chrono::seconds stall) : mWay(way), mTranslator(stall) {}

    void doWrong(List& list)
    {
        if (mWay == "crash")
            std::abort();
        if (mWay == "exit")
            std::_Exit(3);
        if (mWay == "exit-at-once")
            std::exit(4);
        if (mWay == "leave")
            leaveSoon();
        if (mWay == "quit")
            host::Loop::quit();
        if (mWay == "stall")
            list.append(&mSlow);
    }

private:
    /// In the middle of what the script does next.
    static void leaveSoon()
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(20 + getpid() % 20));
        host::Loop::quit();
    }

    std::string_view mWay;
    SlowTranslator mTranslator;
    TranslationInfo mSlow{"Slow", &mTranslator};
};

} // namespace

int main(int count, char** words)
{
    const std::string_view way = words[1];
    sem_init(&endOfStall, 0, 0);
    std::signal(SIGUSR1, [](int) { sem_post(&endOfStall); });
    Widget::setGuiThreadId();
    Display display(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    Wrongdoer wrongdoer(way, std::chrono::seconds(count > 2 ? std::atoi(words[2]) : 3));
    List list(2);
    list.append("Do it");
    const kit::Subscription chosen(list, [&](Command*) { wrongdoer.doWrong(list); });
    display.show();
    display.setCurrent(&list);
    while (way == "deaf")
        pause();
    display.exec();
    while (way == "linger")
        pause();
    display.setCurrent(nullptr);
}
