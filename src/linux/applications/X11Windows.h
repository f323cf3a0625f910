#pragma once

#include "linux/applications/ApplicationGroups.h"
#include "linux/applications/X11Connection.h"

#include <optional>
#include <vector>

namespace orken::desktop {

struct X11WindowList {
    /// In the order in which they were first shown.
    std::vector<ClientWindow> windows;
    std::optional<int> windowManagerProcess;
    /// The window manager closes windows on request (EWMH, _NET_CLOSE_WINDOW).
    bool managerCloses = false;
};

/// What the window manager lists. Three round trips to the server however many windows there are; a window that
/// vanishes meanwhile has nothing but its number. Absent without a window manager that keeps a list.
[[nodiscard]] std::optional<X11WindowList> listWindows(X11Connection& connection);

} // namespace orken::desktop
