// An application that does one thing wrong when the user chooses the first row: `misbehaving crash|exit|leave|linger`.
// `deaf` never runs its loop, `never` does all well.

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "host/Phone.h"
#include "host/toolkit/Loop.h"

#include <chrono>
#include <cstdlib>
#include <string_view>
#include <thread>
#include <unistd.h>

using namespace DisplayAPI;

namespace {

class Wrongdoer : public CommandListener {
public:
    explicit Wrongdoer(std::string_view way) : mWay(way) {}

    void commandAction(Command*, Displayable*) override
    {
        if (mWay == "crash")
            std::abort();
        if (mWay == "exit")
            std::_Exit(3);
        if (mWay == "leave")
            leaveSoon();
    }

private:
    /// In the middle of what the script does next.
    static void leaveSoon()
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(20 + getpid() % 20));
        host::Loop::quit();
    }

    std::string_view mWay;
};

} // namespace

int main(int, char** words)
{
    const std::string_view way = words[1];
    Widget::setGuiThreadId();
    Display display(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    Wrongdoer wrongdoer(way);
    List list(2);
    list.append("Do it");
    list.addCommandListener(&wrongdoer);
    display.show();
    display.setCurrent(&list);
    while (way == "deaf")
        pause();
    display.exec();
    while (way == "linger")
        pause();
    display.setCurrent(nullptr);
}
