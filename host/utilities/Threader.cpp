#include "utilities/Threader.h"

#include "host/utilities/ThreadableState.h"
#include "utilities/Threadable.h"

#include <atomic>
#include <pthread.h>

namespace {

constexpr std::size_t LONGEST_NAME = 15;

std::string nameFor(const std::string& wanted)
{
    static std::atomic<int> count{0};
    const std::string name = wanted.empty() ? "worker-" + std::to_string(++count) : wanted;
    return name.substr(0, LONGEST_NAME);
}

/// What the new thread needs to know. `body` may be gone when its run() returns; `state` is not.
struct Job {
    Threadable* body;
    std::shared_ptr<Threadable::State> state;
    std::string name;

    static void* run(void* argument)
    {
        const std::unique_ptr<Job> job(static_cast<Job*>(argument));
        pthread_setname_np(pthread_self(), job->name.c_str());
        job->state->begin();
        job->body->run();
        job->state->end();
        return nullptr;
    }
};

} // namespace

Threader::~Threader() = default;

bool Threader::start(Threadable* body, const std::string& name, int, int)
{
    auto job = std::make_unique<Job>(Job{body, body->state(), nameFor(name)});
    const std::shared_ptr<Threadable::State> state = job->state;
    if (!state->start(&Job::run, job.get()))
        return false;
    static_cast<void>(job.release());
    return true;
}
