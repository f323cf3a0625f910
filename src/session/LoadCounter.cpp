#include "session/LoadCounter.h"

namespace orken {

namespace {

constexpr Seconds kLoadTick{1.0};

} // namespace

void LoadCounter::startLoadTimer()
{
    (void)timers_.scheduleRepeating(
        kLoadTick, [self = shared_from_this()] { self->mainQueue_.async([self] { self->loadTimerTick(); }); });
}

void LoadCounter::loadTimerTick()
{
    second_.set(model_->didFinishLoading.get() ? 0 : second_.get() + 1);
}

} // namespace orken
