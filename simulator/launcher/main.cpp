#include "simulator/launcher/Options.h"
#include "simulator/launcher/PageSession.h"
#include "simulator/launcher/ScriptSession.h"

#include <iostream>

int main(int count, char** words)
{
    using namespace simulator;
    const Options options = parseOptions({words + 1, words + count});
    if (options.wantsHelp) {
        std::cout << USAGE;
        return 0;
    }
    if (!options.error.empty()) {
        std::cerr << "phone: " << options.error << "\n\n" << USAGE;
        return 2;
    }
    return options.script ? runScript(options) : runBehindPage(options);
}
