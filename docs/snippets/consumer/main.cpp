#include "DisplayAPI/Display.h"
#include "DisplayAPI/List.h"
#include "DisplayAPI/Widget.h"
#include "host/Phone.h"

#include <thread>

int main()
{
    using namespace DisplayAPI;
    Widget::setGuiThreadId();
    Display display(host::hardwareName(), "en_GB", "dd.mm.yyyy", "24h", host::isNarrow(), nullptr);
    List list(1);
    std::jthread application([&] {
        list.append("Rows: " + std::to_string(list.size() + 1));
        display.setCurrent(&list);
    });
    display.show();
    display.exec();
    display.setCurrent(nullptr);
}
