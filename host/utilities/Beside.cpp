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

} // namespace host
