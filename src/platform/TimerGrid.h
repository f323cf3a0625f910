#pragma once

#include "platform/Seconds.h"

namespace orken {

/// When a repeating timer fires: on a fixed grid from its start, however late the fires before were. Times are seconds
/// of any steady clock.
class TimerGrid {
public:
    /// `interval` is above zero.
    TimerGrid(Seconds start, Seconds interval) : next_(start + interval), interval_(interval) {}

    [[nodiscard]] Seconds next() const { return next_; }

    [[nodiscard]] bool isDue(Seconds now) const { return now >= next_; }

    /// Everything due up to now counts as this one fire.
    void fired(Seconds now);

private:
    Seconds next_;
    Seconds interval_;
};

} // namespace orken
