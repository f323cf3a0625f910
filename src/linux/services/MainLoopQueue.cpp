#include "linux/services/MainLoopQueue.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orken::desktop {

namespace {

bool isDue(gint64 moment)
{
    return moment <= g_get_monotonic_time();
}

} // namespace

MainLoopQueue::MainLoopQueue(GMainContext* context) : source_(Source::timed([this] { runNext(); }, context)) {}

void MainLoopQueue::async(std::function<void()> item)
{
    enter(0, std::move(item));
}

void MainLoopQueue::after(Seconds delay, std::function<void()> item)
{
    enter(static_cast<gint64>(std::ceil(std::max(delay.count(), 0.0) * G_USEC_PER_SEC)), std::move(item));
}

void MainLoopQueue::stop()
{
    source_.end();
}

void MainLoopQueue::enter(gint64 delay, std::function<void()> item)
{
    const std::lock_guard lock(mutex_);
    items_.emplace(g_get_monotonic_time() + delay, std::move(item));
    arm();
}

/// With the mutex held. Wakes the context when its thread waits.
void MainLoopQueue::arm()
{
    constexpr gint64 kNever = -1;
    constexpr gint64 kAtOnce = 0;
    gint64 next = kNever;
    if (!items_.empty()) {
        next = isDue(items_.begin()->first) ? kAtOnce : items_.begin()->first;
    }
    source_.setReadyTime(next);
}

void MainLoopQueue::runNext()
{
    std::function<void()> item;
    {
        const std::lock_guard lock(mutex_);
        if (!items_.empty() && isDue(items_.begin()->first)) {
            item = std::move(items_.begin()->second);
            items_.erase(items_.begin());
        }
        arm();
    }
    if (item) {
        item();
    }
}

} // namespace orken::desktop
