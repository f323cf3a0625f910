#pragma once

#include <string>

namespace orken::desktop {

/// Asks the copy of the application that owns `identifier` on the session's bus to present itself, and does not wait
/// for its answer: it may be busy for a minute with its own blocking read. False when there is no such copy, or no bus.
[[nodiscard]] bool presentRunningCopy(const std::string& identifier);

} // namespace orken::desktop
