#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orken::desktop {

/// What a program does for the user's session, as far as its window class tells.
enum class SystemComponent {
    fileManagerDesktop,
    dock,
    search,
    settings,
    windowServer,
    sessionManager,
    wallpaper,
    /// Input method, assistive technology or portal: whoever needs one cannot go on without it.
    indispensable,
};

/// Absent for an ordinary application. The class is a part of WM_CLASS (ICCCM, section 4.1.2.5), in any case.
[[nodiscard]] std::optional<SystemComponent> systemComponent(std::string_view windowClass);

/// The original platform's identifier for what this component does; absent for one that has no counterpart there.
[[nodiscard]] std::optional<std::string> bundleIdentifierOf(SystemComponent component);

/// The session breaks without it, so it is in no list of running applications.
[[nodiscard]] bool isSessionCritical(SystemComponent component);

} // namespace orken::desktop
