#pragma once

#include "platform/MainQueue.h"
#include "platform/TimerGrid.h"
#include "platform/Timers.h"

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
    void async(std::function<void()> item) override;
    void after(Seconds delay, std::function<void()> item) override;
    [[nodiscard]] std::shared_ptr<Timer> scheduleRepeating(Seconds interval, std::function<void()> block) override;

    /// Something that the outside does after the delay; it comes under alerts as well.
    void later(Seconds delay, std::function<void()> event);

    /// Work looked for on every turn after the queue, such as frames; the source says whether there was some.
    void addSource(std::function<bool()> source) { sources_.push_back(std::move(source)); }

    void addBackgroundJob(std::function<void()> job) { jobs_.push_back(std::move(job)); }

    /// All that is due by now.
    void run() { advance(Seconds{0}); }

    void advance(Seconds duration)
    {
        (void)runUntil([] { return false; }, duration);
    }

    [[nodiscard]] bool runUntil(const std::function<bool()>& done, Seconds limit);
    /// The jobs of the background queue, one at a time.
    void runBackground();

    /// The main thread waits: time passes and nothing is served.
    void block(Seconds duration) { now_ += duration; }

    void beginModal() { ++modalDepth_; }

    void endModal() { --modalDepth_; }

    [[nodiscard]] bool isModal() const { return modalDepth_ > 0; }

    /// The process ends: nothing is served from here on.
    void stop();

    void requireMainThread() const;

private:
    class RepeatingTimer final : public Timer {
    public:
        RepeatingTimer(TimerGrid start, std::function<void()> block) : grid(start), block_(std::move(block)) {}

        void fire() override
        {
            if (const auto block = block_) {
                block();
            }
        }

        void invalidate() override { block_ = nullptr; }

        [[nodiscard]] bool isValid() const { return static_cast<bool>(block_); }

        TimerGrid grid;

    private:
        std::function<void()> block_;
    };

    bool turn();
    bool fireTimers();
    bool serveQueue();
    [[nodiscard]] Seconds nextTime() const;

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
