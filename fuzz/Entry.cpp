#include "Target.h"

#include <cstddef>
#include <cstdint>

// The name by which libFuzzer and the replay driver call a target.
// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    orken::fuzz::run({reinterpret_cast<const char*>(data), size});
    return 0;
}
