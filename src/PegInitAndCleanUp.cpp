#include "PegInitAndCleanUp.h"

#include "toolkit/PegFunctions.h"

namespace DisplayAPI {

void PegInitAndCleanUp::init()
{
    pegInit();
}

void PegInitAndCleanUp::cleanUp()
{
    pegCleanUp();
}

} // namespace DisplayAPI
