#include "session/WatermarkMovement.h"

#include "foundation/Decimal.h"

namespace orken {

namespace {

constexpr Seconds kMovementInterval{5.0};
constexpr double kSideMargin = 50;
constexpr double kTopMargin = 70;
constexpr double kBottomMargin = 50;

} // namespace

void WatermarkMovement::startTextMovement()
{
    ports_.console.printLine("FullScreen startTextMovement");
    if (const auto running = timer_.lock()) {
        running->invalidate();
    }
    timer_ = ports_.timers.scheduleRepeating(kMovementInterval, [self = shared_from_this()] {
        self->ports_.mainQueue.async([self] { self->updateTextPosition(); });
    });
}

void WatermarkMovement::updateTextPosition()
{
    const auto screen = ports_.screens.mainScreenFrame();
    if (!screen) {
        ports_.console.printLine("Ekran boyutları alınamadı.");
        return;
    }
    // A video that fills the screen: to the pixel, and in the screen's points, which are the page's pixels.
    const bool fillsScreen = values_.videoMaxWidth == screen->width && values_.videoMaxHeight == screen->height;
    const double right = (fillsScreen ? screen->width : screen->width * 0.5) - kSideMargin;
    const double bottom =
        (fillsScreen ? screen->height : values_.videoMaxHeight.value_or(screen->height)) - kBottomMargin;
    if (right < kSideMargin || bottom < kTopMargin) {
        return;
    }
    const double x = ports_.random.between(kSideMargin, right);
    const double y = ports_.random.between(kTopMargin, bottom);
    position_.set({.x = x, .y = y});
    ports_.console.printLine("X Position: " + decimalText(x) + ", Y Position: " + decimalText(y));
}

WatermarkMovement::Ports watermarkPorts(const Ports& ports)
{
    return {.timers = ports.timers,
            .mainQueue = ports.mainQueue,
            .screens = ports.screens,
            .random = ports.random,
            .console = ports.console};
}

} // namespace orken
