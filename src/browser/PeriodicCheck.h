#pragma once

#include "machine/OtherApplications.h"
#include "machine/WindowControl.h"
#include "platform/MainQueue.h"
#include "platform/Timers.h"

#include <memory>

namespace orken {

/// What is done every ten seconds for as long as the process runs, once it has been started, and with each update pass
/// of a page as well. Main thread only.
class PeriodicCheck {
public:
    struct Ports {
        Timers& timers;
        MainQueue& mainQueue;
        WindowControl& windowControl;
        OtherApplications& otherApplications;
    };

    explicit PeriodicCheck(const Ports& ports) : ports_(ports) {}

    /// Runs the check now; the first call starts the one timer as well, and later ones leave its schedule alone.
    void run();

    /// Queues a toggle of the last window's full screen, and asks the other applications to quit.
    void runPeriodicCheck();

private:
    Ports ports_;
    std::shared_ptr<Timer> timer_;
};

} // namespace orken
