#include "simulator/script/ExpectedScreen.h"

#include <cstdlib>

namespace simulator {

bool updatesScreens()
{
    const char* const value = std::getenv(UPDATE_SCREENS_VARIABLE);
    return value != nullptr && std::string_view(value) == "1";
}

std::filesystem::path expectedScreen(const std::filesystem::path& folder, std::string_view name, std::string_view panel)
{
    const std::filesystem::path common = folder / name;
    std::filesystem::path own = common;
    own.replace_extension("." + std::string(panel) + common.extension().string());
    return exists(own) ? own : common;
}

} // namespace simulator
