#pragma once

namespace orken {

/// The system's random numbers. Any thread.
class RandomNumbers {
public:
    RandomNumbers() = default;
    RandomNumbers(const RandomNumbers&) = delete;
    RandomNumbers& operator=(const RandomNumbers&) = delete;
    virtual ~RandomNumbers() = default;

    /// Uniformly from the closed range; `low` is not above `high`.
    [[nodiscard]] virtual double between(double low, double high) = 0;
};

} // namespace orken
