#include "simulator/script/ExpectedScreen.h"

#include <cstdlib>

namespace simulator {

bool updatesScreens()
{
    const char* const value = std::getenv(UPDATE_SCREENS_VARIABLE);
    return value != nullptr && std::string_view(value) == "1";
}

std::filesystem::path ownScreen(const std::filesystem::path& file, std::string_view panel)
{
    const std::string ending = "." + std::string(panel);
    std::filesystem::path own = file;
    if (file.stem().extension() != ending)
        own.replace_extension(ending + file.extension().string());
    return own;
}

std::filesystem::path expectedScreen(const std::filesystem::path& folder, std::string_view name, std::string_view panel)
{
    const std::filesystem::path common = folder / name;
    const std::filesystem::path own = ownScreen(common, panel);
    return exists(own) ? own : common;
}

} // namespace simulator
