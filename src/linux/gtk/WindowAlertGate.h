#pragma once

#include "foundation/Subject.h"
#include "platform/AlertStack.h"

namespace orken::desktop {

/// When alerts of single windows may be seen: while no application-modal one is up. Main thread only.
class WindowAlertGate {
public:
    explicit WindowAlertGate(const AlertStack& stack) : stack_(stack) {}

    [[nodiscard]] bool isOpen() const { return stack_.depth() == 0; }

    /// Sends whenever the last application-modal alert has ended.
    [[nodiscard]] Subject<>& opened() { return opened_; }

private:
    const AlertStack& stack_;
    Subject<> opened_;
};

} // namespace orken::desktop
