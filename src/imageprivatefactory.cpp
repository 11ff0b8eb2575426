#include "imageprivatefactory.h"

namespace DisplayAPI::imageprivatefactory {

ImagePrivate* createPI(const std::string&)
{
    return nullptr;
}

ImagePrivate* createPI(const char*, int, int)
{
    return nullptr;
}

ImagePrivate* createPI(ImagePrivate*)
{
    return nullptr;
}

ImagePrivate* createPI(std::istream&)
{
    return nullptr;
}

ImagePrivate* createPI(unsigned int, unsigned int)
{
    return nullptr;
}

} // namespace DisplayAPI::imageprivatefactory
