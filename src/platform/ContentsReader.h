#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/Outcome.h"

#include <string>

namespace orken {

/// The blocking read of an address's whole contents as text. Main thread only.
class ContentsReader : NonCopyable {
public:
    virtual ~ContentsReader() = default;

    /// A plain GET; the status code is not examined, the body's encoding is detected, 60 s without traffic are an
    /// error. Blocks the main thread: no queue, timer or event is served. A request of the system to terminate
    /// cancels it, which is an error too.
    [[nodiscard]] virtual Outcome<std::string> readText(const std::string& url) = 0;
};

} // namespace orken
