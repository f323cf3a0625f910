#pragma once

#include "platform/Seconds.h"

#include <cstdint>
#include <optional>

namespace orken::desktop {

/// Chooses from a screen's frames 60 a second, on average also where it has more than that.
class FrameLimiter {
public:
    /// The time since the frame that was chosen before, 0 for the first; absent when this one, of that time in
    /// microseconds (more than 0), is not chosen.
    [[nodiscard]] std::optional<Seconds> choose(std::int64_t frameTime);

private:
    /// Of the frame that was chosen before; 0 before the first.
    std::int64_t last_ = 0;
    /// When the next one is wanted.
    std::int64_t due_ = 0;
};

} // namespace orken::desktop
