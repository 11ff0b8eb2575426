#include "apps/deskphone/Desk.h"
#include "host/Phone.h"
#include "kit/Phone.h"

int main()
{
    DisplayAPI::kit::Phone phone({.hardware = host::hardwareName(), .narrow = host::isNarrow()});
    deskphone::Desk desk(phone.display(), "en");
    desk.open();
    phone.run();
}
