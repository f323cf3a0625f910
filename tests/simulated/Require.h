#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace orken::simulated {

/// Ends the test program when a port is used against its contract, so that a misuse never looks like a passed test.
inline void require(bool condition, const std::string& misuse)
{
    if (!condition) {
        std::fprintf(stderr, "simulated desktop: %s\n", misuse.c_str());
        std::abort();
    }
}

} // namespace orken::simulated
