#pragma once

#include "foundation/NonCopyable.h"

namespace orken {

/// The system's random numbers. Any thread.
class RandomNumbers : NonCopyable {
public:
    virtual ~RandomNumbers() = default;

    /// Uniformly from the closed range; `low` is not above `high`.
    [[nodiscard]] virtual double between(double low, double high) = 0;
};

} // namespace orken
