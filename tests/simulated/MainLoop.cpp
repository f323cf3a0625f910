#include "simulated/MainLoop.h"

#include "simulated/Require.h"

#include <algorithm>
#include <utility>

namespace orken::simulated {

namespace {

std::function<void()> takeFirst(std::deque<std::function<void()>>& items)
{
    auto first = std::move(items.front());
    items.pop_front();
    return first;
}

} // namespace

void MainLoop::async(std::function<void()> item)
{
    if (!stopped_) {
        queue_.push_back(std::move(item));
    }
}

void MainLoop::after(Seconds delay, std::function<void()> item)
{
    later(delay, [this, item = std::move(item)] { async(item); });
}

std::shared_ptr<Timer> MainLoop::scheduleRepeating(Seconds interval, std::function<void()> block)
{
    requireMainThread();
    timers_.push_back(std::make_shared<RepeatingTimer>(TimerGrid(now_, interval), std::move(block)));
    return timers_.back();
}

void MainLoop::later(Seconds delay, std::function<void()> event)
{
    if (!stopped_) {
        events_.emplace(now_ + delay, std::move(event));
    }
}

bool MainLoop::runUntil(const std::function<bool()>& done, Seconds limit)
{
    for (const Seconds end = now_ + limit;; now_ = std::max(now_, std::min(end, nextTime()))) {
        int turns = 0;
        do {
            require(++turns < 10000, "the main loop never comes to rest");
            if (done()) {
                return true;
            }
        } while (turn());
        if (now_ >= end || stopped_) {
            return false;
        }
    }
}

void MainLoop::runBackground()
{
    while (!jobs_.empty()) {
        require(!std::exchange(onBackground_, true), "the background queue is serial");
        takeFirst(jobs_)();
        onBackground_ = false;
    }
}

void MainLoop::stop()
{
    stopped_ = true;
    events_.clear();
    queue_.clear();
    jobs_.clear();
    timers_.clear();
}

void MainLoop::requireMainThread() const
{
    require(!onBackground_, "called on the background queue, belongs to the main thread");
}

bool MainLoop::turn()
{
    bool worked = false;
    while (!events_.empty() && events_.begin()->first <= now_) {
        events_.extract(events_.begin()).mapped()();
        worked = true;
    }
    worked |= fireTimers();
    worked |= serveQueue();
    for (const auto& source : sources_) {
        worked |= !stopped_ && source();
    }
    return worked;
}

bool MainLoop::fireTimers()
{
    bool fired = false;
    for (const auto& timer : std::vector(timers_)) {
        if (modalDepth_ == 0 && !stopped_ && timer->isValid() && timer->grid.isDue(now_)) {
            timer->grid.fired(now_);
            timer->fire();
            fired = true;
        }
    }
    std::erase_if(timers_, [](const auto& timer) { return !timer->isValid(); });
    return fired;
}

bool MainLoop::serveQueue()
{
    // A loop inside an item does not serve the queue that is busy with that item.
    if (servingQueue_ || queue_.empty()) {
        return false;
    }
    servingQueue_ = true;
    while (!queue_.empty()) {
        takeFirst(queue_)();
    }
    servingQueue_ = false;
    return true;
}

Seconds MainLoop::nextTime() const
{
    Seconds next = events_.empty() ? Seconds::max() : events_.begin()->first;
    for (const auto& timer : timers_) {
        if (modalDepth_ == 0 && timer->isValid()) {
            next = std::min(next, timer->grid.next());
        }
    }
    return next;
}

} // namespace orken::simulated
