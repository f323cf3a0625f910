#include "app/VistroApp.h"

#include "app/FirstView.h"

namespace orken {

VistroApp::VistroApp(const Ports& ports, Endpoints endpoints)
    : ports_(ports), endpoints_(std::move(endpoints)), machine_(ports_, endpoints_),
      browser_(ports_, endpoints_, machine_), session_(ports_, endpoints_, machine_, browser_),
      appDelegate_(machine_.browsingData), versionGate_(versionGate(ports_, endpoints_, machine_))
{
}

int VistroApp::main()
{
    return ports_.application.run(appDelegate_, body());
}

WindowGroup VistroApp::body()
{
    return {.title = "ORKEN'E Hoşgeldiniz", .content = [this] { return makeFirstView(); }};
}

std::unique_ptr<View> VistroApp::makeFirstView()
{
    return std::make_unique<FirstView>(
        endpoints_.updateImageURL(),
        FirstView::Ports{.application = ports_.application,
                         .windows = ports_.windows,
                         .versionGate = versionGate_,
                         .savedState = machine_.savedState,
                         .otherApplications = machine_.otherApplications,
                         .uninstall = machine_.uninstall,
                         .makeContentView = [this] { return session_.makeContentView(); }});
}

} // namespace orken
