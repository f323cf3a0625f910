#pragma once

#include "linux/gtk/DesktopWindows.h"
#include "linux/gtk/WindowAlertGate.h"
#include "platform/AlertStack.h"
#include "platform/Alerts.h"

namespace orken::desktop {

/// Application-modal alerts over GTK. Main thread only.
class DesktopAlerts final : public Alerts {
public:
    DesktopAlerts(AlertStack& stack, DesktopWindows& windows, WindowAlertGate& gate)
        : stack_(stack), windows_(windows), gate_(gate)
    {
    }

    [[nodiscard]] int runModal(const Alert& alert) override;

    /// Alerts are refused from here on.
    void stop() { stopped_ = true; }

private:
    AlertStack& stack_;
    DesktopWindows& windows_;
    WindowAlertGate& gate_;
    bool stopped_ = false;
};

} // namespace orken::desktop
