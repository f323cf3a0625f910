#pragma once

#include <chrono>

namespace orken {

/// Intervals and time-outs.
using Seconds = std::chrono::duration<double>;

} // namespace orken
