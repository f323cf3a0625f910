#pragma once

#include "linux/loop/SignalConnection.h"
#include "platform/KeyMonitors.h"

#include <gtk/gtk.h>

namespace orken::desktop {

/// Puts every key-down of every toplevel of the process, the toolkit's own included, before the key monitors. Main
/// thread only, after the toolkit has been initialised.
class KeyDownEvents {
public:
    /// `monitors` outlives every window.
    explicit KeyDownEvents(KeyMonitors& monitors);

private:
    void watch(guint first, guint count);

    KeyMonitors& monitors_;
    SignalConnection toplevelsChanged_;
};

} // namespace orken::desktop
