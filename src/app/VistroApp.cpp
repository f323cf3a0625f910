#include "app/VistroApp.h"

#include "app/FirstView.h"
#include "session/ContentView.h"
#include "session/WebView.h"

namespace orken {

VistroApp::VistroApp(const Ports& ports, Endpoints endpoints)
    : ports_(ports), endpoints_(std::move(endpoints)),
      appDelegate_(ports.cookies, ports.websiteData, ports.files, endpoints_.bundleIdentifier),
      identity_(ports.hardware, ports.contentsReader, endpoints_.ipEchoURL),
      savedState_(ports.files, ports.console, endpoints_.bundleIdentifier),
      otherApplications_({.runningApplications = ports.runningApplications,
                          .alerts = ports.alerts,
                          .application = ports.application,
                          .console = ports.console},
                         endpoints_.bundleIdentifier),
      uninstall_(ports.files, ports.alerts, ports.application, ports.console),
      versionGate_({.bundle = ports.bundle,
                    .urlSession = ports.urlSession,
                    .mainQueue = ports.mainQueue,
                    .console = ports.console,
                    .workspace = ports.workspace,
                    .application = ports.application,
                    .uninstall = uninstall_},
                   endpoints_.settingsURL()),
      windowControl_(ports.windows, ports.notifications, ports.keyMonitors, ports.console),
      loginParameter_({.urlSession = ports.urlSession,
                       .mainQueue = ports.mainQueue,
                       .console = ports.console,
                       .clock = ports.clock,
                       .identity = identity_},
                      endpoints_.ipEchoURL),
      pdfDownload_({.console = ports.console,
                    .mainQueue = ports.mainQueue,
                    .files = ports.files,
                    .alerts = ports.alerts,
                    .workspace = ports.workspace,
                    .clock = ports.clock}),
      periodicCheck_({.timers = ports.timers,
                      .mainQueue = ports.mainQueue,
                      .windowControl = windowControl_,
                      .otherApplications = otherApplications_}),
      pageScripts_({.console = ports.console, .mainQueue = ports.mainQueue, .periodicCheck = periodicCheck_},
                   pageValues_)
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
    return std::make_unique<FirstView>(endpoints_.updateImageURL(),
                                       FirstView::Ports{.application = ports_.application,
                                                        .windows = ports_.windows,
                                                        .versionGate = versionGate_,
                                                        .savedState = savedState_,
                                                        .otherApplications = otherApplications_,
                                                        .uninstall = uninstall_,
                                                        .makeContentView = [this] { return makeContentView(); }});
}

std::unique_ptr<View> VistroApp::makeContentView()
{
    return std::make_unique<ContentView>(
        endpoints_.loginHost,
        ContentView::Ports{.identity = identity_,
                           .console = ports_.console,
                           .mainQueue = ports_.mainQueue,
                           .notifications = ports_.notifications,
                           .windowControl = windowControl_,
                           .makeSessionScreen = [this](const std::string& link) { return makeSessionScreen(link); }});
}

std::unique_ptr<View> VistroApp::makeSessionScreen(const std::string& link)
{
    const WebView::Ports ports{.browserViews = ports_.browserViews,
                               .windowControl = windowControl_,
                               .browserServices = {.coordinator = {.console = ports_.console,
                                                                   .loginParameter = loginParameter_,
                                                                   .pdfDownload = pdfDownload_},
                                                   .pageScripts = pageScripts_},
                               .alerts = ports_.alerts,
                               .application = ports_.application,
                               .bundle = ports_.bundle,
                               .pageValues = pageValues_,
                               .watermark = {.timers = ports_.timers,
                                             .mainQueue = ports_.mainQueue,
                                             .screens = ports_.screens,
                                             .random = ports_.random,
                                             .console = ports_.console},
                               .animation = {.surfaces = ports_.animationSurfaces,
                                             .urlSession = ports_.urlSession,
                                             .mainQueue = ports_.mainQueue,
                                             .files = ports_.files,
                                             .bundle = ports_.bundle,
                                             .notifications = ports_.notifications}};
    return std::make_unique<WebView>(link,
                                     WebView::Addresses{.kMainPageURL = endpoints_.mainPageURL,
                                                        .kLoadingAnimationURL = endpoints_.loadingAnimationURL()},
                                     ports);
}

} // namespace orken
