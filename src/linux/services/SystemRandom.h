#pragma once

#include "platform/RandomNumbers.h"

#include <algorithm>
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
        const double open = std::nextafter(high, std::numeric_limits<double>::max());
        return std::min(high, std::uniform_real_distribution<double>(low, open)(device));
    }
};

} // namespace orken::desktop
