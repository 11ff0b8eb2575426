#pragma once

#include <string>

class Threadable;

/// Starts threads.
class Threader {
public:
    Threader() = default;
    virtual ~Threader();

    /// Starts a joinable thread that runs `body->run()`. An empty name gives a name made by the platform; names are
    /// what debuggers show. `priorityClass` and `stackSize` may be ignored by a platform. Returns false when no thread
    /// could be started; the body has not run then.
    virtual bool start(Threadable* body, const std::string& name, int priorityClass, int stackSize);
};
