#include "browser/BrowserServices.h"

namespace orken {

BrowserServices::BrowserServices(const Ports& ports, const Endpoints& endpoints, MachineServices& machine)
    : identity(deviceIdentity(ports, endpoints)), loginParameter({.urlSession = ports.urlSession,
                                                                  .mainQueue = ports.mainQueue,
                                                                  .console = ports.console,
                                                                  .clock = ports.clock,
                                                                  .identity = identity},
                                                                 endpoints.ipEchoURL),
      pdfDownload({.console = ports.console,
                   .mainQueue = ports.mainQueue,
                   .files = ports.files,
                   .alerts = ports.alerts,
                   .workspace = ports.workspace,
                   .clock = ports.clock}),
      periodicCheck({.timers = ports.timers,
                     .mainQueue = ports.mainQueue,
                     .windowControl = machine.windowControl,
                     .otherApplications = machine.otherApplications}),
      addressReader(ports.console, pageValues),
      videoPage({.console = ports.console, .mainQueue = ports.mainQueue}, pageValues),
      updatePass({.console = ports.console,
                  .values = pageValues,
                  .addressReader = addressReader,
                  .videoPage = videoPage,
                  .periodicCheck = periodicCheck}),
      console_(ports.console)
{
}

SwiftUIWebView::Services BrowserServices::forView()
{
    return {.coordinator = {.console = console_, .loginParameter = loginParameter, .pdfDownload = pdfDownload},
            .updatePass = updatePass};
}

} // namespace orken
