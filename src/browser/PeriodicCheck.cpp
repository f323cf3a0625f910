#include "browser/PeriodicCheck.h"

namespace orken {

namespace {

constexpr Seconds kInterval{10};

} // namespace

void PeriodicCheck::run()
{
    if (!timer_) {
        timer_ = ports_.timers.scheduleRepeating(kInterval, [this] { runPeriodicCheck(); });
    }
    timer_->fire();
}

void PeriodicCheck::runPeriodicCheck()
{
    ports_.mainQueue.async([&control = ports_.windowControl] { control.toggleFullScreen(); });
    ports_.otherApplications.terminateOtherApplications();
}

} // namespace orken
