#pragma once

#include "browser/WebViewModel.h"
#include "platform/MainQueue.h"
#include "platform/Timers.h"
#include "view/State.h"

#include <cstdint>
#include <memory>

namespace orken {

/// Counts the seconds for which the session's first page has not finished. Held by its timers, which nobody stops. Main
/// thread only.
class LoadCounter : public std::enable_shared_from_this<LoadCounter> {
public:
    LoadCounter(std::shared_ptr<WebViewModel> model, State<std::int64_t> second, Timers& timers, MainQueue& mainQueue)
        : model_(std::move(model)), second_(std::move(second)), timers_(timers), mainQueue_(mainQueue)
    {
    }

    /// Each call starts another timer.
    void startLoadTimer();

    void loadTimerTick();

private:
    std::shared_ptr<WebViewModel> model_;
    State<std::int64_t> second_;
    Timers& timers_;
    MainQueue& mainQueue_;
};

} // namespace orken
