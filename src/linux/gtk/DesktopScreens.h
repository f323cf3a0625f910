#pragma once

#include "linux/loop/SignalConnection.h"
#include "linux/loop/Source.h"
#include "platform/NotificationCenter.h"
#include "platform/Screens.h"
#include "platform/Windows.h"

#include <gtk/gtk.h>

#include <functional>
#include <vector>

namespace orken::desktop {

/// Monitors over GDK. Several changes in one turn of the main loop are one notification. Main thread only.
class DesktopScreens final : public Screens {
public:
    DesktopScreens(NotificationCenter& notifications, std::function<GtkWindow*()> keyWindow)
        : notifications_(notifications), keyWindow_(std::move(keyWindow))
    {
    }

    /// Begins to watch; the toolkit must have been initialised.
    void start();

    [[nodiscard]] std::optional<Rect> mainScreenFrame() const override;

private:
    void watchMonitors();
    void changed();

    NotificationCenter& notifications_;
    std::function<GtkWindow*()> keyWindow_;
    SignalConnection listChanged_;
    std::vector<SignalConnection> monitorChanged_;
    Source notification_;
};

} // namespace orken::desktop
