#pragma once

#include "foundation/NonCopyable.h"
#include "platform/Seconds.h"

#include <functional>
#include <memory>

namespace orken {

/// A repeating timer of the main loop. The loop keeps it alive: dropping the last handle does not stop it. Main thread
/// only.
class Timer : NonCopyable {
public:
    virtual ~Timer() = default;

    /// Runs the block now and leaves the schedule alone; does nothing after `invalidate`.
    virtual void fire() = 0;

    /// Final, also from inside the block.
    virtual void invalidate() = 0;
};

class Timers : NonCopyable {
public:
    virtual ~Timers() = default;

    /// First fires one interval from now, then on that grid; late fires are merged into one. Timers stand still while
    /// an application-modal alert is up, and one whose time has passed then fires once when the alert has ended.
    /// Main thread only.
    virtual std::shared_ptr<Timer> scheduleRepeating(Seconds interval, std::function<void()> block) = 0;
};

} // namespace orken
