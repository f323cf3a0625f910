#include "animation/Playback.h"

#include <gtest/gtest.h>

#include <limits>

namespace orken {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

TEST(Playback, runsThroughItsRangeAsOftenAsTheLoopModeSays)
{
    const std::tuple<const char*, LUProgressRange, LottieLoopMode, double, double, double, bool> cases[] = {
        {"half way", {0, 1}, LottieLoopMode::playOnce(), 1, 1, 0.5, false},
        {"ends at the end of its range", {0.25, 0.75}, LottieLoopMode::playOnce(), 1, 5, 0.75, true},
        {"a part takes its share of the time", {0.25, 0.75}, LottieLoopMode::playOnce(), 1, 0.5, 0.5, false},
        {"twice as fast", {0, 1}, LottieLoopMode::playOnce(), 2, 0.5, 0.5, false},
        {"loops", {0, 1}, LottieLoopMode::loop(), 1, 200.5, 0.25, false},
        {"repeats", {0, 1}, LottieLoopMode::repeat(2.5), 1, 3, 0.5, false},
        {"the last repetition can be a part", {0, 1}, LottieLoopMode::repeat(2.5), 1, 6, 0.5, true},
        {"repeating stops at the end", {0, 1}, LottieLoopMode::repeat(2), 1, 6, 1, true},
        {"forwards, then back", {0, 1}, LottieLoopMode::autoReverse(), 1, 2.5, 0.75, false},
        {"and forwards again", {0, 1}, LottieLoopMode::autoReverse(), 1, 4.5, 0.25, false},
        {"backwards by its range", {1, 0}, LottieLoopMode::playOnce(), 1, 0.5, 0.75, false},
        {"backwards by its speed", {0, 1}, LottieLoopMode::playOnce(), -1, 0.5, 0.75, false},
        {"an empty range is at its end", {0.5, 0.5}, LottieLoopMode::playOnce(), 1, 0, 0.5, true},
        {"an empty range can be looped", {0.5, 0.5}, LottieLoopMode::loop(), 1, 9, 0.5, false},
        {"beyond the animation", {-1, 7}, LottieLoopMode::playOnce(), 1, 1, 0.5, false},
        {"no numbers", {kNotANumber, 1}, LottieLoopMode::playOnce(), kNotANumber, 1, 0, false},
        {"infinite speed stands still", {0, 1}, LottieLoopMode::loop(), kInfinite, 1, 0, false},
        {"no number of repetitions", {0, 1}, LottieLoopMode::repeat(kNotANumber), 1, 1, 0, true},
        {"time does not run backwards", {0, 1}, LottieLoopMode::loop(), 1, -3, 0, false},
    };

    for (const auto& [name, range, loopMode, speed, seconds, progress, hasEnded] : cases) {
        Playback playback(range, loopMode, Seconds{2}, speed);
        playback.advance(Seconds{seconds});
        EXPECT_NEAR(playback.progress(), progress, 1e-9) << name;
        EXPECT_EQ(playback.hasEnded(), hasEnded) << name;
    }
}

TEST(Playback, staysExactForADayOfLooping)
{
    Playback playback({}, LottieLoopMode::loop(), Seconds{2}, 1);
    for (int frame = 0; frame < 24 * 3600 * 60; ++frame) {
        playback.advance(Seconds{1.0 / 60});
    }
    EXPECT_NEAR(std::min(playback.progress(), 1 - playback.progress()), 0, 1e-6);
    EXPECT_NEAR(playback.progressAfter(Seconds{0.5}), 0.25, 1e-6);
    EXPECT_TRUE(Playback({}, LottieLoopMode::loop(), Seconds{2}, 0).isStill());
}

TEST(FrameAt, theLastFrameIsNeverPassed)
{
    const std::tuple<double, int> cases[] = {{0, 0},  {0.0166, 0},     {0.017, 1}, {0.5, 30},
                                             {1, 59}, {kInfinite, 59}, {-1, 0},    {kNotANumber, 0}};
    for (const auto& [progress, frame] : cases) {
        EXPECT_EQ(frameAt(progress, 60), frame) << progress;
    }
}

} // namespace orken
