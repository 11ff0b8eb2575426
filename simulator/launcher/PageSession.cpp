#include "simulator/launcher/PageSession.h"

#include "simulator/launcher/ApplicationRun.h"
#include "simulator/launcher/DisplayReminder.h"
#include "simulator/web/PortCheck.h"

#include <iostream>

namespace simulator {

namespace {

using std::chrono::milliseconds;

Child::Environment environmentFor(const Options& options, const Endpoint& endpoint)
{
    return {{"DISPLAYAPI_HOST", "web:" + std::to_string(endpoint.port)},
            {"DISPLAYAPI_VARIANT", options.variant},
            {LISTEN_VARIABLE, options.listen.value_or("")},
            {TOKEN_VARIABLE, options.token.value_or("")}};
}

/// The address is worth printing once somebody answers there.
std::optional<Ending> waitUntilServed(ApplicationRun& run, const Endpoint& endpoint)
{
    DisplayReminder reminder;
    while (!isServed(endpoint)) {
        if (const auto ending = run.wait(milliseconds(20)))
            return ending;
        reminder.stillWaiting();
    }
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
    Endpoint endpoint = makeEndpoint(options.port, options.listen, options.token);
    if (options.port == ANY_PORT)
        endpoint.port = freePort(endpoint);
    if (const std::string problem = portProblem(endpoint); !problem.empty())
        return complain(problem);
    ApplicationRun run(options.application, environmentFor(options, endpoint));
    if (!run.error().empty())
        return complain(run.error());
    const auto early = waitUntilServed(run, endpoint);
    const Ending ending = early ? *early : waitForEnd(run);
    std::cout << "The application " << ending.description() << '.' << std::endl;
    return ending.status();
}

} // namespace simulator
