#include "linux/services/LoopTimers.h"

#include "linux/loop/Source.h"
#include "platform/TimerGrid.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

namespace orken::desktop {

namespace {

Seconds now()
{
    return std::chrono::microseconds(g_get_monotonic_time());
}

} // namespace

/// Kept alive by its source until it is invalidated.
class LoopTimer final : public Timer {
public:
    LoopTimer(const AlertStack& alerts, Seconds interval, std::function<void()> block)
        : alerts_(alerts), grid_(now(), interval), block_(std::make_shared<std::function<void()>>(std::move(block)))
    {
    }

    ~LoopTimer() override { invalidate(); }

    static void start(const std::shared_ptr<LoopTimer>& timer)
    {
        timer->source_ = Source::timed([timer] { timer->becomeDue(); });
        timer->arm();
    }

    void fire() override
    {
        // Held here, because the block may invalidate its own timer.
        if (const auto block = block_) {
            (*block)();
        }
    }

    void invalidate() override
    {
        // Either may hold the last handle, so both go when this object is no longer needed.
        const auto block = std::move(block_);
        const auto source = std::move(source_);
    }

    void arm()
    {
        if (source_.isPending()) {
            source_.setReadyTime(static_cast<gint64>(std::ceil(grid_.next().count() * G_USEC_PER_SEC)));
        }
    }

private:
    void becomeDue()
    {
        if (alerts_.depth() > 0) {
            // Stays due; the end of the alerts arms it again.
            source_.setReadyTime(-1);
            return;
        }
        // The clock and the grid may differ by a rounding.
        grid_.fired(std::max(now(), grid_.next()));
        arm();
        fire();
    }

    const AlertStack& alerts_;
    TimerGrid grid_;
    std::shared_ptr<std::function<void()>> block_;
    Source source_;
};

std::shared_ptr<Timer> LoopTimers::scheduleRepeating(Seconds interval, std::function<void()> block)
{
    assert(interval > Seconds::zero());
    auto timer = std::make_shared<LoopTimer>(alerts_, interval, std::move(block));
    if (stopped_) {
        timer->invalidate();
        return timer;
    }
    LoopTimer::start(timer);
    std::erase_if(timers_, [](const std::weak_ptr<LoopTimer>& known) { return known.expired(); });
    timers_.push_back(timer);
    return timer;
}

void LoopTimers::alertsEnded()
{
    for (const auto& known : timers_) {
        if (const auto timer = known.lock()) {
            timer->arm();
        }
    }
}

void LoopTimers::stop()
{
    stopped_ = true;
    for (const auto& known : std::exchange(timers_, {})) {
        if (const auto timer = known.lock()) {
            timer->invalidate();
        }
    }
}

} // namespace orken::desktop
