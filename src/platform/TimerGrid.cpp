#include "platform/TimerGrid.h"

#include <cmath>

namespace orken {

void TimerGrid::fired(Seconds now)
{
    if (now < next_) {
        return;
    }
    next_ += (std::floor((now - next_) / interval_) + 1) * interval_;
}

} // namespace orken
