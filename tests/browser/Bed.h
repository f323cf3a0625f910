#pragma once

#include "browser/SwiftUIWebView.h"
#include "simulated/SimulatedDesktop.h"

namespace orken {

/// A browser view with the session's navigation delegate and what that works with.
struct BrowserBed {
    static constexpr const char* kEcho = "https://ip.example/";

    BrowserBed() { view->setNavigationDelegate(coordinator); }

    void go(const std::string& url)
    {
        view->navigate(url);
        desktop.loop.run();
    }

    simulated::SimulatedDesktop desktop;
    DeviceIdentity identity{desktop.hardware, desktop.network, kEcho};
    LoginParameter loginParameter{{desktop.network, desktop.loop, desktop.console, desktop.clock, identity}, kEcho};
    PdfDownload pdfDownload{
        {desktop.console, desktop.loop, desktop.files, desktop.alerts, desktop.workspace, desktop.clock}};
    WindowControl windowControl{desktop.windows, desktop.notifications, desktop.keyMonitors, desktop.console};
    OtherApplications otherApplications{
        {desktop.runningApplications, desktop.alerts, desktop.application, desktop.console}, "com.orken.test"};
    PeriodicCheck periodicCheck{{desktop.loop, desktop.loop, windowControl, otherApplications}};
    PageValues values;
    PageScripts pageScripts{{desktop.console, desktop.loop, periodicCheck}, values};
    SwiftUIWebView::Services services{{desktop.console, loginParameter, pdfDownload}, pageScripts};
    std::shared_ptr<WebViewModel> model = std::make_shared<WebViewModel>("first");
    std::shared_ptr<Coordinator> coordinator = std::make_shared<Coordinator>(model, services.coordinator);
    std::shared_ptr<BrowserView> made = desktop.browserViews.make();
    std::shared_ptr<simulated::SimulatedBrowserView> view = desktop.browserViews.latest;
};

} // namespace orken
