#pragma once

#include "platform/Console.h"
#include "platform/KeyMonitors.h"
#include "platform/NotificationCenter.h"
#include "platform/Windows.h"
#include "view/State.h"

namespace orken {

/// What keeps the session in full screen with no other window in view. First and last are positions in the window list
/// at the moment of the call. Main thread only.
class WindowControl {
public:
    struct Ports {
        Windows& windows;
        NotificationCenter& notifications;
        KeyMonitors& keyMonitors;
        Console& console;
    };

    explicit WindowControl(const Ports& ports) : ports_(ports) {}

    /// Brings the first window into full screen unless it is there, and then sets `isFullScreen` at once.
    void enterFullScreen(State<bool> isFullScreen);

    /// Toggles the last window whatever its state is.
    void toggleFullScreen();

    /// Closes every visible window but the first; the first one counts as first also while it is hidden.
    void closeOtherWindows();

    /// From here to the end of the process the cell follows every window's changes. Each call adds two observers.
    void observeFullScreenChanges(const State<bool>& isFullScreen);

    /// From here to the end of the process the Escape key closes the other windows and reaches no window itself, so no
    /// page either. An alert that is up is one of those windows: it ends as if aborted, which counts as a refusal.
    /// Before the session the key does what it does on the desktop: on the update alert it presses the button that
    /// cancels. Each call adds a monitor. This outlives them all.
    void installKeyMonitor();

private:
    Ports ports_;
};

} // namespace orken
