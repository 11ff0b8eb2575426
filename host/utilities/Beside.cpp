#include "host/utilities/Beside.h"

#include <dlfcn.h>
#include <filesystem>

namespace host {

std::string besideTheHost(const std::string& file)
{
    Dl_info info;
    if (dladdr(reinterpret_cast<void*>(&besideTheHost), &info) == 0)
        return file;
    return std::filesystem::absolute(info.dli_fname).replace_filename(file).string();
}

LoadedFunction loadBesideTheHost(const std::string& file, const char* function)
{
    void* const object = dlopen(besideTheHost(file).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (object == nullptr)
        return {.error = dlerror()};
    void* const found = dlsym(object, function);
    if (found == nullptr)
        return {.error = besideTheHost(file) + " has no " + function};
    return {.function = found};
}

} // namespace host
