#pragma once

#include <string>

namespace host {

/// Where the telephone's panel and keys are outside the process: a page in the browser, a script.
///
/// A front end is a shared object of its own beside the host's, loaded by pegInit() when the environment asks for it
/// and stopped by pegCleanUp(). It uses Lcd::current(), Keyboard, Clock and Loop.
class FrontEnd {
public:
    virtual ~FrontEnd() = default;

    /// Starts it. An error comes back as a sentence for the user; empty when all is well.
    virtual std::string start(const std::string& options) = 0;

    /// The toolkit is about to stop. No call into the toolkit afterwards.
    virtual void stop() = 0;
};

/// What each front end's shared object exports under the name "displayapiCreateFrontEnd".
using CreateFrontEnd = FrontEnd* (*)();

/// Starts what DISPLAYAPI_HOST names: "headless" (or nothing) is none, "web:PORT" the page, "script:FILE" a script.
/// Where it cannot start, the reason goes to stderr and the process exits with 1: a telephone that nobody can see or
/// press is no use.
void startFrontEnd();
void stopFrontEnd();

} // namespace host
