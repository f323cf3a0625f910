#pragma once

#include "platform/Application.h"

namespace orken {

/// Once-only termination, the same for every desktop. Main thread only.
class TerminationLatch {
public:
    /// Runs the delegate's handler, if there is one; false for every request after the first.
    bool request(ApplicationDelegate* delegate)
    {
        if (requested_) {
            return false;
        }
        requested_ = true;
        if (delegate) {
            delegate->applicationWillTerminate();
        }
        return true;
    }

    [[nodiscard]] bool isRequested() const { return requested_; }

private:
    bool requested_ = false;
};

} // namespace orken
