#include "simulator/launcher/PageSession.h"

#include "simulator/launcher/ApplicationRun.h"
#include "simulator/web/PortCheck.h"

#include <iostream>

namespace simulator {

namespace {

using std::chrono::milliseconds;

constexpr int CANNOT_START = 2;

Child::Environment environmentFor(const Options& options)
{
    return {{"DISPLAYAPI_HOST", "web:" + options.port},
            {"DISPLAYAPI_VARIANT", options.variant},
            {LISTEN_VARIABLE, options.listen.value_or("")},
            {TOKEN_VARIABLE, options.token.value_or("")}};
}

/// The address is worth printing once somebody answers there.
std::optional<Ending> waitUntilServed(ApplicationRun& run, const Endpoint& endpoint)
{
    while (!isServed(endpoint))
        if (const auto ending = run.wait(milliseconds(20)))
            return ending;
    std::cout << "The telephone is at " << endpoint.url() << " (Ctrl-C ends it)" << std::endl;
    return {};
}

Ending waitForEnd(ApplicationRun& run)
{
    for (;;)
        if (const auto ending = run.wait(milliseconds::max()))
            return *ending;
}

int complain(const std::string& sentence)
{
    std::cerr << "phone: " << sentence << '\n';
    return CANNOT_START;
}

} // namespace

int runBehindPage(const Options& options)
{
    const Endpoint endpoint = makeEndpoint(options.port, options.listen, options.token);
    if (const std::string problem = portProblem(endpoint); !problem.empty())
        return complain(problem);
    ApplicationRun run(options.application, environmentFor(options));
    if (!run.error().empty())
        return complain(run.error());
    const auto early = waitUntilServed(run, endpoint);
    const Ending ending = early ? *early : waitForEnd(run);
    std::cout << "The application " << ending.description() << '.' << std::endl;
    return ending.status();
}

} // namespace simulator
