#include "support/HangReport.h"

#include "host/toolkit/Loop.h"
#include "toolkit/PegMessageQueue.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace test {

namespace {

/// "4711 worker-3 S (sleeping)" out of the kernel's description of a thread.
std::string describeThread(const std::filesystem::path& folder)
{
    std::ifstream status(folder / "status");
    std::string name;
    std::string state;
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("Name:"))
            name = line.substr(6);
        if (line.starts_with("State:"))
            state = line.substr(7);
    }
    return folder.filename().string() + " " + name + " " + state;
}

void describeQueue(std::ostream& report)
{
    if (gtPegMainQueue == nullptr) {
        report << "  main queue: none, the toolkit has never been started\n";
        return;
    }
    report << "  main queue: " << gtPegMainQueue->count() << " messages";
    if (pthread_mutex_trylock(&gtPegMainQueue->mutex) != 0) {
        report << ", its mutex is held\n";
        return;
    }
    report << ", of which taken over " << gtPegMainQueue->takenCount << ", waiting:";
    for (const PegMessage* message = gtPegMainQueue->head; message != nullptr; message = message->Next)
        report << " 0x" << std::hex << message->wType << std::dec;
    pthread_mutex_unlock(&gtPegMainQueue->mutex);
    report << '\n';
}

} // namespace

std::string hangReport()
{
    std::ostringstream report;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task"))
        report << "  thread " << describeThread(thread.path()) << '\n';
    report << "  GUI loop: " << (host::Loop::isRunning() ? "runs" : "does not run") << '\n';
    describeQueue(report);
    return report.str();
}

} // namespace test
