#include "linux/animation/FrameLimiter.h"
#include "linux/animation/FramePipeline.h"

#include <gtest/gtest.h>

// When frames are drawn and shown, without a display and a renderer.

namespace orken::desktop {
namespace {

constexpr PixelSize kSize{.width = 60, .height = 40};

/// Its images are the numbers of their frames.
struct Pipeline : FramePipeline<int> {
    /// The renderer is asked for what is missing and answers: the frame, negative when it was drawn ahead.
    int work(PixelSize size = kSize)
    {
        requested(missing(size).value());
        EXPECT_FALSE(missing(size)) << "one at a time";
        const Picture picture = answered();
        return take(picture, picture.frame, size) ? *shown() : -picture.frame;
    }
};

TEST(FramePipeline, drawsWhatIsWantedAndOneAhead)
{
    Pipeline pipeline;
    EXPECT_FALSE(pipeline.missing(kSize) || pipeline.shown());
    pipeline.want(3, 4);
    EXPECT_EQ(pipeline.work(), 3);
    EXPECT_EQ(pipeline.work(), -4);
    EXPECT_FALSE(pipeline.missing(kSize));
    EXPECT_FALSE(pipeline.advance(kSize)) << "not before it is wanted";
    pipeline.want(4, 5);
    EXPECT_TRUE(pipeline.advance(kSize));
    EXPECT_EQ(*pipeline.shown(), 4);
    EXPECT_EQ(pipeline.work(), -5);
    pipeline.want(9, 9);
    EXPECT_EQ(pipeline.work(), 9) << "after a jump";
    EXPECT_FALSE(pipeline.missing(kSize)) << "a still frame";
}

TEST(FramePipeline, drawsAnewInAnotherSizeAndForAnotherRenderer)
{
    constexpr PixelSize kLarger{.width = 120, .height = 80};
    Pipeline pipeline;
    pipeline.want(3, 4);
    pipeline.work();
    pipeline.work();
    EXPECT_EQ(pipeline.work(kLarger), 3);
    EXPECT_EQ(pipeline.work(kLarger), -4);
    pipeline.want(4, 5);
    EXPECT_FALSE(pipeline.advance(kSize)) << "drawn ahead in the other size";
    pipeline.requested({.frame = 5, .size = kLarger});
    pipeline.rendererEnded();
    EXPECT_FALSE(pipeline.advance(kLarger));
    EXPECT_EQ(*pipeline.shown(), 3);
    EXPECT_EQ(pipeline.work(kLarger), 4);
}

TEST(FrameLimiter, choosesSixtyFramesASecondOnAnyScreen)
{
    for (const int rate : {30, 60, 75, 144, 240}) {
        FrameLimiter limiter;
        Seconds total{0};
        int chosen = 0;
        for (int frame = 0; frame < 10 * rate; ++frame) {
            // Frame times waver, and the screen stands still for a while.
            const int stillSeconds = frame < 5 * rate ? 0 : 3;
            const auto time = 1 + frame * 1'000'000LL / rate + stillSeconds * 1'000'000LL + (frame % 3 - 1) * 400;
            const auto elapsed = limiter.choose(time + 1000);
            chosen += elapsed ? 1 : 0;
            total += elapsed.value_or(Seconds{0});
        }
        EXPECT_NEAR(chosen, 10 * std::min(rate, 60), 3) << rate;
        EXPECT_NEAR(total.count(), 13, 0.05) << rate;
    }
}

} // namespace
} // namespace orken::desktop
