#include "support/Seeds.h"

#include <cstdio>
#include <cstdlib>

namespace test {

std::vector<unsigned int> seeds()
{
    unsigned int first = 1;
    unsigned int last = 3;
    if (const char* const wanted = std::getenv("DISPLAYAPI_SEEDS"))
        if (std::sscanf(wanted, "%u..%u", &first, &last) == 1) {
            last = first;
            first = 1;
        }
    std::vector<unsigned int> all;
    for (unsigned int seed = first; seed <= last; ++seed)
        all.push_back(seed);
    return all;
}

} // namespace test
