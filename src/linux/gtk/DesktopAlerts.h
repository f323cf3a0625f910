#pragma once

#include "linux/gtk/DesktopWindows.h"
#include "linux/gtk/WindowAlert.h"
#include "platform/AlertStack.h"
#include "platform/Alerts.h"

#include <functional>

namespace orken::desktop {

/// When alerts of single windows may be seen: while no application-modal one is up.
class AlertGate final : public WindowAlertGate {
public:
    explicit AlertGate(const AlertStack& stack) : stack_(stack) {}

    [[nodiscard]] bool isOpen() const override { return stack_.depth() == 0; }

    [[nodiscard]] Subject<>& opened() override { return opened_; }

private:
    const AlertStack& stack_;
    Subject<> opened_;
};

/// Application-modal alerts over GTK. Main thread only.
class DesktopAlerts final : public Alerts {
public:
    DesktopAlerts(AlertStack& stack, DesktopWindows& windows, AlertGate& gate)
        : stack_(stack), windows_(windows), gate_(gate)
    {
    }

    [[nodiscard]] int runModal(const Alert& alert) override;

    /// Alerts are refused from here on.
    void stop() { stopped_ = true; }

private:
    AlertStack& stack_;
    DesktopWindows& windows_;
    AlertGate& gate_;
    bool stopped_ = false;
};

} // namespace orken::desktop
