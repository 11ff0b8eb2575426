#include "simulator/launcher/PageSession.h"

#include "simulator/launcher/ApplicationRun.h"
#include "simulator/launcher/DisplayReminder.h"
#include "simulator/launcher/ReportPipe.h"
#include "simulator/launcher/TokenFile.h"
#include "simulator/record/RecordingFile.h"
#include "simulator/web/PortCheck.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace simulator {

namespace {

using std::chrono::milliseconds;

Child::Environment environmentFor(const Options& options, int portDescriptor, const std::string& rpcToken)
{
    Child::Environment added = {{"DISPLAYAPI_HOST", "web:" + options.port},
                                {PORT_REPORT_VARIABLE, std::to_string(portDescriptor)},
                                {"DISPLAYAPI_VARIANT", options.variant},
                                {LISTEN_VARIABLE, options.listen.value_or("")},
                                {TOKEN_VARIABLE, options.token.value_or("")},
                                {RPC_TOKEN_VARIABLE, rpcToken},
                                {RPC_READ_ONLY_VARIABLE, options.rpcReadOnly ? "1" : ""}};
    if (options.record)
        added[RECORD_VARIABLE] = std::filesystem::absolute(*options.record);
    if (options.virtualClock)
        added["DISPLAYAPI_CLOCK"] = "virtual";
    return added;
}

/// With the token for who sits at a terminal; what is no terminal may be a log that others read.
std::string inspectorLink(const Endpoint& endpoint, const std::string& token)
{
    return endpoint.inspectorUrl(isatty(STDOUT_FILENO) == 1 ? token : std::string());
}

/// The address is worth printing once somebody answers there, on the port that he says.
std::optional<Ending> waitUntilServed(ApplicationRun& run, ReportPipe& port, Endpoint endpoint, const TokenFile* rpc)
{
    DisplayReminder reminder;
    while (!port.readAvailable()) {
        if (const auto ending = run.wait(milliseconds::max(), port.descriptor()))
            return ending;
        reminder.stillWaiting();
    }
    endpoint.port = std::atoi(port.text().c_str());
    if (rpc != nullptr)
        std::cout << "The test interface is at " << endpoint.rpcUrl() << ", its token in " << rpc->path() << std::endl;
    std::cout << "The telephone is at " << endpoint.url() << " (Ctrl-C ends it)" << std::endl;
    if (rpc != nullptr)
        std::cout << "The inspector is at " << inspectorLink(endpoint, rpc->token()) << std::endl;
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
    if (options.record)
        if (const std::string problem = RecordingFile(*options.record).error(); !problem.empty())
            return complain(problem);
    std::optional<TokenFile> rpc;
    if (options.rpc && !rpc.emplace(options.rpcToken).error().empty())
        return complain(rpc->error());
    ReportPipe port;
    ApplicationRun run(options.application,
                       environmentFor(options, port.writeEnd(), rpc ? rpc->token() : std::string()), port.writeEnd());
    if (!run.error().empty())
        return complain(run.error());
    port.closeWriteEnd();
    const auto early = waitUntilServed(run, port, endpoint, rpc ? &*rpc : nullptr);
    const Ending ending = early ? *early : waitForEnd(run);
    std::cout << "The application " << ending.description() << '.' << std::endl;
    return ending.status();
}

} // namespace simulator
