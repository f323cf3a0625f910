#pragma once

#include "platform/Application.h"
#include "platform/TerminationLatch.h"
#include "simulated/Require.h"
#include "simulated/SimulatedWindows.h"

#include <functional>

namespace orken::simulated {

/// The application's life. `run` opens the window and returns at once: the test drives the loop.
class SimulatedApplication final : public Application, Part {
public:
    SimulatedApplication(Common& common, SimulatedWindows& windows) : Part(common), windows_(windows) {}

    [[nodiscard]] int run(ApplicationDelegate& delegate, const WindowGroup& group) override
    {
        require(!delegate_, "the application runs already");
        delegate_ = &delegate;
        windows_.openGroupWindow(group);
        return 0;
    }

    void terminate() override
    {
        loop_.requireMainThread();
        if (latch_.request(delegate_)) {
            beforeEnd();
            journal_.add("terminated");
            loop_.stop();
        }
    }

    [[nodiscard]] bool isTerminating() const override { return latch_.isRequested(); }

    /// What the desktop still does between the delegate's handler and the end of the process.
    std::function<void()> beforeEnd;

private:
    SimulatedWindows& windows_;
    TerminationLatch latch_;
    ApplicationDelegate* delegate_ = nullptr;
};

} // namespace orken::simulated
