#include "platform/ReloadLimit.h"

namespace orken {

bool ReloadLimit::allows(Seconds now)
{
    while (!reloads_.empty() && now - reloads_.front() >= kPeriod) {
        reloads_.pop_front();
    }
    if (reloads_.size() >= kMostReloads) {
        return false;
    }
    reloads_.push_back(now);
    return true;
}

} // namespace orken
