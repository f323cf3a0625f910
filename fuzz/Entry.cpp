#include "Target.h"

#include <cstddef>
#include <cstdint>

// The name by which libFuzzer and the replay driver call a target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) // NOLINT(readability-identifier-naming)
{
    orken::fuzz::run({reinterpret_cast<const char*>(data), size});
    return 0;
}
