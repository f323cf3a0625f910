#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace orken::fuzz {

/// What a target does with one input. Each target file defines it once; whatever the input is, it returns, or ends the
/// process where a promise of the product is broken.
void run(std::string_view input);

/// Ends the process, so that the fuzzer keeps the input, unless the promise holds.
inline void demand(bool holds, const char* promise)
{
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

/// Takes the first line off the input, and its line end.
inline std::string_view takeLine(std::string_view& input)
{
    const std::string_view line = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(line.size() + 1, input.size()));
    return line;
}

} // namespace orken::fuzz
