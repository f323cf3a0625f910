#include "animation/Playback.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orken {

namespace {

double finite(double value)
{
    return std::isfinite(value) ? value : 0;
}

double withinAnimation(double progress)
{
    return std::clamp(std::isnan(progress) ? 0.0 : progress, 0.0, 1.0);
}

double passLimitOf(const LottieLoopMode& loopMode)
{
    switch (loopMode.kind) {
    case LottieLoopMode::Kind::playOnce:
        return 1;
    case LottieLoopMode::Kind::repeat:
        return std::max(std::isnan(loopMode.passes) ? 0.0 : loopMode.passes, 0.0);
    case LottieLoopMode::Kind::loop:
    case LottieLoopMode::Kind::autoReverse:
        break;
    }
    return std::numeric_limits<double>::infinity();
}

} // namespace

Playback::Playback(const LUProgressRange& range, const LottieLoopMode& loopMode, Seconds duration, double speed)
    : from_(withinAnimation(range.from)), to_(withinAnimation(range.to)),
      reversesEverySecondPass_(loopMode.kind == LottieLoopMode::Kind::autoReverse), passLimit_(passLimitOf(loopMode)),
      passesPerSecond_(0)
{
    if (speed < 0) {
        std::swap(from_, to_);
    }
    const double passSeconds = std::abs(to_ - from_) * duration.count();
    if (passSeconds > 0) {
        passesPerSecond_ = finite(std::abs(speed) / passSeconds);
    } else if (std::isfinite(passLimit_)) {
        // Nothing to run through: at its end from the start.
        passes_ = passLimit_;
    }
}

void Playback::advance(Seconds elapsed)
{
    passes_ += std::max(elapsed.count(), 0.0) * passesPerSecond_;
    if (std::isinf(passLimit_)) {
        // Two passes are the whole period also where every second one runs backwards; small numbers stay exact.
        passes_ = std::fmod(passes_, 2);
    } else {
        passes_ = std::min(passes_, passLimit_);
    }
}

double Playback::progressAfter(Seconds more) const
{
    const double passes = std::min(passes_ + more.count() * passesPerSecond_, passLimit_);
    double whole = 0;
    double part = std::modf(passes, &whole);
    if (part == 0 && passes == passLimit_ && passes > 0) {
        // The end of the last pass, not the start of another.
        part = 1;
    }
    const bool backwards = reversesEverySecondPass_ && std::fmod(whole, 2) == 1;
    return from_ + (to_ - from_) * (backwards ? 1 - part : part);
}

int frameAt(double progress, int frameCount)
{
    const double frame = std::floor(withinAnimation(progress) * frameCount);
    return std::min(frameCount - 1, static_cast<int>(frame));
}

} // namespace orken
