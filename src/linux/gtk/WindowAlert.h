#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/Subject.h"
#include "linux/gtk/WindowAlertGate.h"
#include "view/Alert.h"

#include <gtk/gtk.h>

#include <functional>

namespace orken::desktop {

/// An alert that belongs to one window and goes with it; it is in no window list. Main thread only.
class WindowAlert : NonCopyable {
public:
    /// Shown at once, or when the gate opens. `answer` gets the place of the pressed button; Escape presses the one
    /// with the cancel role.
    WindowAlert(GtkWindow* parent, const Alert& alert, WindowAlertGate& gate,
                const std::function<void(std::size_t)>& answer);

    ~WindowAlert();

private:
    GtkWindow* window_;
    Subscription opened_;
};

} // namespace orken::desktop
