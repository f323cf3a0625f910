#pragma once

namespace orken {

/// How a play repeats. With `autoReverse` every second pass runs backwards, without end.
struct LottieLoopMode {
    enum class Kind { playOnce, loop, repeat, autoReverse };

    Kind kind = Kind::playOnce;
    /// Passes of `repeat`; parts of one count.
    double passes = 1;

    [[nodiscard]] static constexpr LottieLoopMode playOnce() { return {}; }

    [[nodiscard]] static constexpr LottieLoopMode loop() { return {.kind = Kind::loop}; }

    [[nodiscard]] static constexpr LottieLoopMode repeat(double passes)
    {
        return {.kind = Kind::repeat, .passes = passes};
    }

    [[nodiscard]] static constexpr LottieLoopMode autoReverse() { return {.kind = Kind::autoReverse}; }

    bool operator==(const LottieLoopMode&) const = default;
};

} // namespace orken
