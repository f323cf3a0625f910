#pragma once

#include "foundation/NonCopyable.h"

#include <chrono>

namespace orken {

/// The time of day. Any thread.
class Clock : NonCopyable {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual std::chrono::system_clock::time_point now() const = 0;
};

} // namespace orken
