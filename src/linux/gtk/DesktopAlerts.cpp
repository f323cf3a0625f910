#include "linux/gtk/DesktopAlerts.h"

namespace orken::desktop {

int DesktopAlerts::runModal(const Alert& alert)
{
    if (stopped_) {
        return kAlertAborted;
    }
    const AlertStack::Id id = stack_.push();
    const bool outermost = stack_.depth() == 1;
    const auto nested = outermost ? nullptr : windows_.addPanel();
    AlertPanel& panel = outermost ? windows_.permanentPanel() : *nested;
    panel.show(
        alert, windows_.alertParent(), [this, id](std::size_t button) { stack_.answer(id, button); },
        [this, id] { stack_.abort(id); });

    // A queue item that shows an alert keeps the queue waiting: its source is not dispatched again in here.
    while (!stack_.result(id)) {
        g_main_context_iteration(nullptr, TRUE);
    }
    const int result = *stack_.result(id);
    stack_.pop(id);
    panel.hide();
    if (nested) {
        windows_.removePanel(*nested);
    }
    if (stack_.depth() == 0) {
        gate_.opened().send();
    }
    return result;
}

} // namespace orken::desktop
