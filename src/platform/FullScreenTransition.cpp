#include "platform/FullScreenTransition.h"

namespace orken {

std::optional<FullScreenChange> FullScreenTransition::toggle()
{
    switch (phase_) {
    case Phase::windowed:
        phase_ = Phase::entering;
        return FullScreenChange::willEnter;
    case Phase::fullScreen:
        phase_ = Phase::leaving;
        return FullScreenChange::willExit;
    case Phase::entering:
    case Phase::leaving:
        break;
    }
    return std::nullopt;
}

std::vector<FullScreenChange> FullScreenTransition::reported(bool fullScreen)
{
    if (fullScreen == fillsScreen()) {
        return {};
    }
    std::vector<FullScreenChange> changes;
    if (!isUnderWay()) {
        changes.push_back(fullScreen ? FullScreenChange::willEnter : FullScreenChange::willExit);
    }
    changes.push_back(fullScreen ? FullScreenChange::didEnter : FullScreenChange::didExit);
    phase_ = fullScreen ? Phase::fullScreen : Phase::windowed;
    return changes;
}

void FullScreenTransition::givenUp()
{
    if (phase_ == Phase::entering) {
        phase_ = Phase::windowed;
    } else if (phase_ == Phase::leaving) {
        phase_ = Phase::fullScreen;
    }
}

} // namespace orken
