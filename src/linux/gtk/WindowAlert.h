#pragma once

#include "foundation/Subject.h"
#include "view/Element.h"

#include <gtk/gtk.h>

#include <functional>

namespace orken::desktop {

/// Alerts of windows wait while an application-modal alert is up. Main thread only.
class WindowAlertGate {
public:
    [[nodiscard]] virtual bool isOpen() const = 0;

    /// Tells whenever the last application-modal alert has ended.
    [[nodiscard]] virtual Subject<>& opened() = 0;

protected:
    ~WindowAlertGate() = default;
};

/// An alert that belongs to one window and goes with it; it is in no window list. Main thread only.
class WindowAlert {
public:
    /// Shown at once, or when the gate opens. `answer` gets the place of the pressed button; Escape presses the one
    /// with the cancel role.
    WindowAlert(GtkWindow* parent, const AlertContent& content, WindowAlertGate& gate,
                const std::function<void(std::size_t)>& answer);

    WindowAlert(const WindowAlert&) = delete;
    WindowAlert& operator=(const WindowAlert&) = delete;
    ~WindowAlert();

private:
    GtkWindow* window_;
    Subscription opened_;
};

} // namespace orken::desktop
