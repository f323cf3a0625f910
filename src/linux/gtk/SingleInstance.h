#pragma once

#include <string>

namespace orken::desktop {

/// One copy of the client runs at a time. When the program is started a second time, this asks the instance that is
/// running already, which owns `identifier` on the session's bus, to bring its window to the front; the new process
/// then ends with status 0. It does not wait for an answer: the other may be busy for a minute with its own blocking
/// read. False when there is no other instance, or no bus.
[[nodiscard]] bool presentRunningInstance(const std::string& identifier);

} // namespace orken::desktop
