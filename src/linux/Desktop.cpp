#include "linux/Desktop.h"

#include "linux/ProcessSetup.h"

#include <gdk/x11/gdkx.h>

namespace orken::desktop {

namespace {

/// Absent on Wayland, also where programs of X11 can be shown beside others: nothing tells there which process a window
/// belongs to.
std::optional<std::string> displayName()
{
    GdkDisplay* display = gdk_display_get_default();
    return GDK_IS_X11_DISPLAY(display) ? std::optional<std::string>(gdk_display_get_name(display)) : std::nullopt;
}

} // namespace

Desktop::Desktop(const DesktopSettings& settings)
    : renderNode_(prepareProcess()), bundle(settings.version),
      runningApplications(settings.bundleIdentifier, displayName), urlSession(settings.certificateAuthorityFile),
      contentsReader(settings.certificateAuthorityFile),
      engine({.bundleIdentifier = settings.bundleIdentifier,
              .expectedHost = settings.expectedHost,
              .hasRenderNode = renderNode_,
              .report = [](const std::string& line) { reportDiagnostic(line); }}),
      screens(notifications, [this] { return windows.alertParent(); }),
      application(settings.bundleIdentifier, windows, screens,
                  {.started = [this] { engine.loadWhenIdle(); },
                   .stopProduct =
                       [this] {
                           mainQueue.stop();
                           timers.stop();
                           alerts.stop();
                           keyMonitors.stop();
                           engine.stop();
                           urlSession.stop();
                       },
                   .isCleaningUp = [this] { return engine.isRemovingData(); },
                   .isNested = [this] { return alertStack_.depth() > 0; }})
{
    alertsEnded_ = alertGate_.opened().subscribe([this] { timers.alertsEnded(); });
}

} // namespace orken::desktop
