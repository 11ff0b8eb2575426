#include "host/frontend/FrontEnd.h"

#include "host/utilities/Beside.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
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

/// The shared object stays loaded: its threads may still be on their way out.
FrontEnd* load(const std::string& path)
{
    void* const object = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (object == nullptr)
        giveUp(std::string("The front end cannot be loaded: ") + dlerror());
    const auto create = reinterpret_cast<CreateFrontEnd>(dlsym(object, "displayapiCreateFrontEnd"));
    if (create == nullptr)
        giveUp(path + " is not a front end");
    return create();
}

void start(const Kind& kind, const std::string& options)
{
    gFrontEnd = load(besideTheHost(kind.file));
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
