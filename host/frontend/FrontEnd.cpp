#include "host/frontend/FrontEnd.h"

#include "host/utilities/Beside.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace host {

namespace {

struct Kind {
    std::string_view name;
    const char* file;
};

constexpr std::array<Kind, 2> KINDS{{
    {"web", "libdisplayapi_web.so"},
    {"script", "libdisplayapi_script.so"},
}};

/// Not destroyed when the process ends: a program that exits in the middle of its run leaves the front end's threads
/// running.
FrontEnd* gFrontEnd = nullptr;

[[noreturn]] void giveUp(const std::string& reason)
{
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

FrontEnd* load(const char* file)
{
    const LoadedFunction create = loadBesideTheHost(file, "displayapiCreateFrontEnd");
    if (create.function == nullptr)
        giveUp("The front end cannot be loaded: " + create.error);
    return reinterpret_cast<CreateFrontEnd>(create.function)();
}

void start(const Kind& kind, const std::string& options)
{
    gFrontEnd = load(kind.file);
    const std::string error = gFrontEnd->start(options);
    if (!error.empty())
        giveUp(error);
}

} // namespace

void startFrontEnd()
{
    const char* const variable = std::getenv("DISPLAYAPI_HOST");
    const std::string wanted = variable != nullptr ? variable : "";
    if (wanted.empty() || wanted == "headless")
        return;
    const std::size_t colon = wanted.find(':');
    for (const Kind& kind : KINDS)
        if (colon != std::string::npos && kind.name == std::string_view(wanted).substr(0, colon))
            return start(kind, wanted.substr(colon + 1));
    giveUp("DISPLAYAPI_HOST is '" + wanted + "'; it may be headless, web:PORT or script:FILE");
}

void stopFrontEnd()
{
    if (gFrontEnd != nullptr)
        gFrontEnd->stop();
    delete std::exchange(gFrontEnd, nullptr);
}

} // namespace host
