#include "simulator/web/QuitOnSignal.h"

#include "host/toolkit/Loop.h"

#include <atomic>
#include <csignal>
#include <semaphore.h>

namespace simulator {

namespace {

constexpr int SIGNALS[] = {SIGINT, SIGTERM, SIGHUP};

sem_t gArrived;
std::atomic<bool> gStopping;

void arrived(int)
{
    sem_post(&gArrived);
}

void replaceHandler(int signal, void (*expected)(int), void (*handler)(int))
{
    struct sigaction present {};
    sigaction(signal, nullptr, &present);
    if (present.sa_handler != expected)
        return;
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    sigaction(signal, &action, nullptr);
}

void waitForSignals()
{
    while (sem_wait(&gArrived) != 0 || !gStopping)
        host::Loop::quit();
}

} // namespace

QuitOnSignal::QuitOnSignal()
{
    sem_init(&gArrived, 0, 0);
    gStopping = false;
    mWaiter = std::thread(waitForSignals);
    for (const int signal : SIGNALS)
        replaceHandler(signal, SIG_DFL, arrived);
}

QuitOnSignal::~QuitOnSignal()
{
    for (const int signal : SIGNALS)
        replaceHandler(signal, arrived, SIG_DFL);
    gStopping = true;
    sem_post(&gArrived);
    mWaiter.join();
}

} // namespace simulator
