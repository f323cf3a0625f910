#include "linux/engine/MemoryLimits.h"

#include <memory>

namespace orken::desktop {

namespace {

using Settings = std::unique_ptr<WebKitMemoryPressureSettings, decltype(&webkit_memory_pressure_settings_free)>;

// In MiB. A document of 100 MB was seen to take 970 MiB in the page's process, most of it twice over in base64, and 660
// MiB in the network process; both have room for one of twice that size.
constexpr guint kPageLimit = 2048;
constexpr guint kNetworkLimit = 1536;

// Parts of the limit. Below the first a large document is never disturbed by the engine letting go of its caches.
constexpr double kConservative = 0.5;
constexpr double kStrict = 0.75;
constexpr double kKill = 1.0;

// Seconds. Looked at more often than the engine does by itself (30), because a page that has gone wrong grows fast.
constexpr double kPollInterval = 10;

Settings limitsOf(guint mebibytes)
{
    Settings settings(webkit_memory_pressure_settings_new(), webkit_memory_pressure_settings_free);
    webkit_memory_pressure_settings_set_memory_limit(settings.get(), mebibytes);
    // Each has to lie above the one before while they are set, so from the top down.
    webkit_memory_pressure_settings_set_kill_threshold(settings.get(), kKill);
    webkit_memory_pressure_settings_set_strict_threshold(settings.get(), kStrict);
    webkit_memory_pressure_settings_set_conservative_threshold(settings.get(), kConservative);
    webkit_memory_pressure_settings_set_poll_interval(settings.get(), kPollInterval);
    return settings;
}

} // namespace

GObjectPtr<WebKitWebContext> makeLimitedContext()
{
    webkit_network_session_set_memory_pressure_settings(limitsOf(kNetworkLimit).get());
    return GObjectPtr<WebKitWebContext>::adopt(WEBKIT_WEB_CONTEXT(
        g_object_new(WEBKIT_TYPE_WEB_CONTEXT, "memory-pressure-settings", limitsOf(kPageLimit).get(), nullptr)));
}

} // namespace orken::desktop
