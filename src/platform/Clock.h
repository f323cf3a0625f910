#pragma once

#include <chrono>

namespace orken {

/// The time of day. Any thread.
class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    [[nodiscard]] virtual std::chrono::system_clock::time_point now() const = 0;
};

} // namespace orken
