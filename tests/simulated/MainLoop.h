#pragma once

#include "platform/MainQueue.h"
#include "platform/TimerGrid.h"
#include "platform/Timers.h"
#include "simulated/Require.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace orken::simulated {

/// The main thread and the background queue in virtual time. Nothing runs but inside `run`, `advance`, `runUntil` and
/// `runBackground`.
class MainLoop final : public MainQueue, public Timers {
public:
    void async(std::function<void()> item) override
    {
        if (!stopped_) {
            queue_.push_back(std::move(item));
        }
    }

    void after(Seconds delay, std::function<void()> item) override
    {
        later(delay, [this, item = std::move(item)] { async(item); });
    }

    [[nodiscard]] std::shared_ptr<Timer> scheduleRepeating(Seconds interval, std::function<void()> block) override
    {
        requireMainThread();
        timers_.push_back(std::make_shared<RepeatingTimer>(TimerGrid(now_, interval), std::move(block)));
        return timers_.back();
    }

    /// Something that the outside does after the delay; it comes under alerts as well.
    void later(Seconds delay, std::function<void()> event)
    {
        if (!stopped_) {
            events_.emplace(now_ + delay, std::move(event));
        }
    }

    /// Work looked for on every turn after the queue, such as frames; the source says whether there was some.
    void addSource(std::function<bool()> source) { sources_.push_back(std::move(source)); }

    void addBackgroundJob(std::function<void()> job) { jobs_.push_back(std::move(job)); }

    /// All that is due by now.
    void run() { advance(Seconds{0}); }

    void advance(Seconds duration)
    {
        (void)runUntil([] { return false; }, duration);
    }

    [[nodiscard]] bool runUntil(const std::function<bool()>& done, Seconds limit)
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

    /// The jobs of the background queue, one at a time.
    void runBackground()
    {
        while (!jobs_.empty()) {
            require(!std::exchange(onBackground_, true), "the background queue is serial");
            runFirst(jobs_);
            onBackground_ = false;
        }
    }

    /// The main thread waits: time passes and nothing is served.
    void block(Seconds duration) { now_ += duration; }

    void beginModal() { ++modalDepth_; }

    void endModal() { --modalDepth_; }

    [[nodiscard]] bool isModal() const { return modalDepth_ > 0; }

    /// The process ends: nothing is served from here on.
    void stop()
    {
        stopped_ = true;
        events_.clear();
        queue_.clear();
        jobs_.clear();
        timers_.clear();
    }

    /// What is still to come: events, queued items, jobs and timers.
    [[nodiscard]] std::size_t pending() const { return events_.size() + queue_.size() + jobs_.size() + timers_.size(); }

    void requireMainThread() const
    {
        require(!onBackground_, "called on the background queue, belongs to the main thread");
    }

private:
    static void runFirst(std::deque<std::function<void()>>& items)
    {
        const auto first = std::move(items.front());
        items.pop_front();
        first();
    }

    struct RepeatingTimer final : Timer {
        RepeatingTimer(TimerGrid start, std::function<void()> fired) : grid(start), block(std::move(fired)) {}

        void fire() override
        {
            if (const auto now = block) {
                now();
            }
        }

        void invalidate() override { block = nullptr; }

        TimerGrid grid;
        /// Empty once the timer is invalid.
        std::function<void()> block;
    };

    bool turn()
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

    bool fireTimers()
    {
        bool fired = false;
        for (const auto& timer : std::vector(timers_)) {
            if (modalDepth_ == 0 && !stopped_ && timer->block && timer->grid.isDue(now_)) {
                timer->grid.fired(now_);
                timer->fire();
                fired = true;
            }
        }
        std::erase_if(timers_, [](const auto& timer) { return !timer->block; });
        return fired;
    }

    bool serveQueue()
    {
        // A loop inside an item does not serve the queue that is busy with that item.
        if (servingQueue_ || queue_.empty()) {
            return false;
        }
        servingQueue_ = true;
        while (!queue_.empty()) {
            runFirst(queue_);
        }
        servingQueue_ = false;
        return true;
    }

    [[nodiscard]] Seconds nextTime() const
    {
        Seconds next = events_.empty() ? Seconds::max() : events_.begin()->first;
        for (const auto& timer : timers_) {
            if (modalDepth_ == 0 && timer->block) {
                next = std::min(next, timer->grid.next());
            }
        }
        return next;
    }

    Seconds now_{0};
    std::multimap<Seconds, std::function<void()>> events_;
    std::deque<std::function<void()>> queue_;
    std::deque<std::function<void()>> jobs_;
    std::vector<std::shared_ptr<RepeatingTimer>> timers_;
    std::vector<std::function<bool()>> sources_;
    bool servingQueue_ = false;
    bool onBackground_ = false;
    bool stopped_ = false;
    int modalDepth_ = 0;
};

} // namespace orken::simulated
