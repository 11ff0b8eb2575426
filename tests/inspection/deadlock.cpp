// An application whose GUI thread waits for a thread that waits for the GUI thread: `deadlock listener|join|mutex`.

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/List.h"

#include <future>
#include <mutex>
#include <string_view>
#include <thread>

using namespace DisplayAPI;

/// Asks the GUI thread something, on a thread of the pool.
class AskingListener : public CommandListener {
public:
    explicit AskingListener(List& list) : mList(list) {}

    void commandAction(Command*, Displayable*) override
    {
        mList.size();
        mAnswered.set_value();
    }

    void waitUntilAnswered() { mAnswered.get_future().wait(); }

private:
    List& mList;
    std::promise<void> mAnswered;
};

/// Has the GUI thread wait for what waits for it.
class WaitingFacade : public Widget {
public:
    WaitingFacade(List& list, std::string_view way) : mList(list), mWay(way) {}

    void processGuiRequest(GuiRequestEvent& request) override
    {
        if (mWay == "listener")
            waitForListener();
        if (mWay == "join")
            joinAsker();
        if (mWay == "mutex")
            lockAskersMutex();
        signalComplete(request);
    }

private:
    void joinAsker()
    {
        std::thread asker([this] { mList.size(); });
        asker.join();
    }

    void lockAskersMutex()
    {
        std::mutex mutex;
        std::promise<void> isLocked;
        std::thread asker([&] {
            const std::lock_guard lock(mutex);
            isLocked.set_value();
            mList.size();
        });
        isLocked.get_future().wait();
        const std::lock_guard lock(mutex);
        asker.join();
    }

    void waitForListener()
    {
        AskingListener listener(mList);
        Command command("ask", Command::OK);
        listener.postCommandAction(&command, &mList);
        listener.waitUntilAnswered();
    }

    List& mList;
    const std::string_view mWay;
};

int main(int argc, char** argv)
{
    Widget::setGuiThreadId();
    Display display("plain", "en_GB", "dd.mm.yyyy", "24h", false, nullptr);
    List list(0);
    WaitingFacade facade(list, argc > 1 ? argv[1] : "listener");
    std::thread([&facade] { facade.postEventAsync(7); }).join();
    display.exec();
}
