#include "DisplayAPI/List.h"
#include "host/Phone.h"
#include "kit/Phone.h"

int main()
{
    using namespace DisplayAPI;
    kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
    List list(1);
    phone.run(list, [&] { list.append("Rows: " + std::to_string(list.size() + 1)); });
}
