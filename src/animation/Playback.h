#pragma once

#include "animation/LUStateData.h"
#include "platform/Seconds.h"

namespace orken {

/// One play of an animation: where its progress stands after so much time. Pure.
class Playback {
public:
    /// `duration` is that of the whole animation at speed 1. A range that ends before it starts, or a negative speed,
    /// runs backwards; both together forwards. Values beyond the animation are cut to it, what is no number is 0.
    Playback(const LUProgressRange& range, const LottieLoopMode& loopMode, Seconds duration, double speed);

    void advance(Seconds elapsed);

    /// From 0 to 1.
    [[nodiscard]] double progress() const { return progressAfter(Seconds{0}); }

    [[nodiscard]] double progressAfter(Seconds more) const;

    /// The last pass has run to its end.
    [[nodiscard]] bool hasEnded() const { return passes_ >= passLimit_; }

    /// Time changes nothing: an endless play that stands still.
    [[nodiscard]] bool isStill() const { return passesPerSecond_ == 0; }

private:
    double from_;
    double to_;
    bool reversesEverySecondPass_;
    double passLimit_;
    double passesPerSecond_;
    double passes_ = 0;
};

/// The frame that is shown at this progress: each has an equal share of it, and 1 is still the last one.
[[nodiscard]] int frameAt(double progress, int frameCount);

} // namespace orken
