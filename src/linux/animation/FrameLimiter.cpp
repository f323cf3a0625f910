#include "linux/animation/FrameLimiter.h"

#include <algorithm>
#include <chrono>

namespace orken::desktop {

std::optional<Seconds> FrameLimiter::choose(std::int64_t frameTime)
{
    constexpr std::int64_t kInterval = 16667;
    // Frame times waver.
    constexpr std::int64_t kTolerance = 1500;
    const bool isFirst = last_ == 0;
    if (!isFirst && frameTime + kTolerance < due_) {
        return std::nullopt;
    }
    const std::int64_t elapsed = isFirst ? 0 : frameTime - last_;
    due_ = std::max((isFirst ? frameTime : due_) + kInterval, frameTime);
    last_ = frameTime;
    return std::chrono::microseconds(elapsed);
}

} // namespace orken::desktop
