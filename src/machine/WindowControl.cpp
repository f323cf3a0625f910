#include "machine/WindowControl.h"

namespace orken {

void WindowControl::enterFullScreen(State<bool> isFullScreen)
{
    const auto windows = ports_.windows.all();
    if (windows.empty() || (windows.front()->styleMask() & windowStyle::kFullScreen) != 0) {
        return;
    }
    windows.front()->toggleFullScreen();
    isFullScreen.set(true);
}

void WindowControl::toggleFullScreen()
{
    const auto windows = ports_.windows.all();
    if (!windows.empty()) {
        windows.back()->toggleFullScreen();
    }
}

void WindowControl::closeOtherWindows()
{
    const auto windows = ports_.windows.all();
    for (const auto& window : windows) {
        if (window != windows.front() && window->isVisible()) {
            window->close();
        }
    }
}

void WindowControl::observeFullScreenChanges(const State<bool>& isFullScreen)
{
    // The observers stay for good, the screen does not: they must not keep its state alive.
    const WeakState<bool> state = isFullScreen;
    ports_.notifications.addObserver(NotificationName::windowWillExitFullScreen, [state] { state.set(false); });
    ports_.notifications.addObserver(NotificationName::windowDidEnterFullScreen, [state] { state.set(true); });
    ports_.console.printLine("FullScreen observeFullScreenChanges ");
}

void WindowControl::installKeyMonitor()
{
    ports_.keyMonitors.add([this](const KeyEvent& event) {
        if (event.keyCode != kEscapeKeyCode) {
            return KeyHandling::passOn;
        }
        closeOtherWindows();
        return KeyHandling::swallow;
    });
}

} // namespace orken
