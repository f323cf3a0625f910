#pragma once

#include "linux/loop/SignalConnection.h"

#include <gtk/gtk.h>

#include <functional>
#include <vector>

namespace orken::desktop {

/// Tells whether a widget is visible: it is mapped, neither it nor anything around it has opacity 0, and its window is
/// not minimised. The toolkit itself stops drawing then, but neither its frame ticks nor anybody else. Main thread
/// only.
class VisibilityWatch {
public:
    /// `changed` is called after each change. It may not end this object.
    VisibilityWatch(GtkWidget* widget, std::function<void()> changed);

    [[nodiscard]] bool isVisible() const { return isVisible_; }

private:
    void mapped();
    void unmapped();
    void update();
    [[nodiscard]] bool currentVisibility() const;

    GtkWidget* widget_;
    std::function<void()> changed_;
    bool isVisible_ = false;
    std::vector<SignalConnection> mapping_;
    /// To what is around the widget, while it is mapped.
    std::vector<SignalConnection> surroundings_;
};

} // namespace orken::desktop
