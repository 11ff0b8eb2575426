// An application whose GUI thread waits for a thread that waits for the GUI thread: `deadlock listener|join`.

#include "DisplayAPI/Command.h"
#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/GuiRequestEvent.h"
#include "DisplayAPI/List.h"

#include <future>
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
    WaitingFacade(List& list, bool joins) : mList(list), mJoins(joins) {}

    void processGuiRequest(GuiRequestEvent& request) override
    {
        mJoins ? joinAsker() : waitForListener();
        signalComplete(request);
    }

private:
    void joinAsker()
    {
        std::thread asker([this] { mList.size(); });
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
    const bool mJoins;
};

int main(int argc, char** argv)
{
    const bool joins = argc > 1 && std::string_view(argv[1]) == "join";
    Widget::setGuiThreadId();
    Display display("plain", "en_GB", "dd.mm.yyyy", "24h", false, nullptr);
    List list(0);
    WaitingFacade facade(list, joins);
    std::thread([&facade] { facade.postEventAsync(7); }).join();
    display.exec();
}
