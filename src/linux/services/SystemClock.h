#pragma once

#include "platform/Clock.h"

namespace orken::desktop {

/// The machine's clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] std::chrono::system_clock::time_point now() const override
    {
        return std::chrono::system_clock::now();
    }
};

} // namespace orken::desktop
