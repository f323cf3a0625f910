#pragma once

#include "platform/Seconds.h"

#include <deque>

namespace orken {

/// How often a page whose process ends is loaded again: a page that takes its process down each time must not keep the
/// machine busy for ever.
class ReloadLimit {
public:
    static constexpr std::size_t kMostReloads = 3;
    static constexpr Seconds kPeriod{60};

    /// Whether one more reload is allowed at `now`, which then counts. Times do not go back.
    [[nodiscard]] bool allows(Seconds now);

private:
    std::deque<Seconds> reloads_;
};

} // namespace orken
