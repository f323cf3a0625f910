#pragma once

#include "platform/RandomNumbers.h"

#include <cmath>
#include <limits>
#include <random>

namespace orken::desktop {

/// Numbers of the kernel's generator.
class SystemRandom final : public RandomNumbers {
public:
    [[nodiscard]] double between(double low, double high) override
    {
        std::random_device device;
        // The upper end belongs to the range, too.
        return std::uniform_real_distribution<double>(low,
                                                      std::nextafter(high, std::numeric_limits<double>::max()))(device);
    }
};

} // namespace orken::desktop
