#pragma once

#include "platform/AlertStack.h"
#include "platform/Timers.h"

#include <memory>
#include <vector>

namespace orken::desktop {

class LoopTimer;

/// Timers of the default main context, one source each, so a timer does not fire inside its own block.
class LoopTimers final : public Timers {
public:
    explicit LoopTimers(const AlertStack& alerts) : alerts_(alerts) {}

    ~LoopTimers() override { stop(); }

    std::shared_ptr<Timer> scheduleRepeating(Seconds interval, std::function<void()> block) override;

    /// After the last alert was popped: whatever came due under the alerts fires once, in a turn of the loop.
    void alertsEnded();

    /// Every timer is invalidated, and a new one is invalid from the start.
    void stop();

private:
    const AlertStack& alerts_;
    std::vector<std::weak_ptr<LoopTimer>> timers_;
    bool stopped_ = false;
};

} // namespace orken::desktop
