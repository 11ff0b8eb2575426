// Prints the milliseconds from the moment given (nanoseconds of the steady clock) to its own begin: what any program in
// C++ has spent by then.

#include <chrono>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    using namespace std::chrono;
    if (argc != 2)
        return 2;
    const nanoseconds started(std::atoll(argv[1]));
    const nanoseconds now = steady_clock::now().time_since_epoch();
    std::printf("%.3f\n", duration<double, std::milli>(now - started).count());
    return 0;
}
