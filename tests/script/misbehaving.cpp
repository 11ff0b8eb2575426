// An application that does one thing wrong when the user chooses the first row: `misbehaving crash|exit|linger`.
// `deaf` never runs its loop.

#include "DisplayAPI/CommandListener.h"
#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "host/Phone.h"

#include <cstdlib>
#include <string_view>
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
    }

private:
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
