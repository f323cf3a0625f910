#include "machine/MachineServices.h"

namespace orken {

MachineServices::MachineServices(const Ports& ports, const Endpoints& endpoints)
    : browsingData({.cookies = ports.cookies, .websiteData = ports.websiteData, .files = ports.files},
                   endpoints.bundleIdentifier),
      otherApplications({.runningApplications = ports.runningApplications,
                         .alerts = ports.alerts,
                         .application = ports.application,
                         .console = ports.console},
                        endpoints.bundleIdentifier),
      savedState({.files = ports.files, .console = ports.console}, endpoints.bundleIdentifier),
      uninstall(
          {.files = ports.files, .alerts = ports.alerts, .application = ports.application, .console = ports.console}),
      windowControl({.windows = ports.windows,
                     .notifications = ports.notifications,
                     .keyMonitors = ports.keyMonitors,
                     .console = ports.console})
{
}

} // namespace orken
