#pragma once

#include "browser/BrowserServices.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

#include <gmock/gmock.h>

namespace orken {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

/// The session's browser on a simulated desktop, with a view that has the session's navigation delegate.
struct BrowserBed {
    BrowserBed() { view->setNavigationDelegate(coordinator); }

    void go(const std::string& url)
    {
        view->navigate(url);
        desktop.loop.run();
    }

    simulated::SimulatedDesktop desktop;
    MachineServices machine{portsOf(desktop), simulated::kEndpoints};
    BrowserServices services{portsOf(desktop), simulated::kEndpoints, machine};
    std::shared_ptr<WebViewModel> model = std::make_shared<WebViewModel>("first");
    std::shared_ptr<Coordinator> coordinator = std::make_shared<Coordinator>(model, services.forView().coordinator);
    std::shared_ptr<BrowserView> made = desktop.browserViews.make();
    std::shared_ptr<simulated::SimulatedBrowserView> view = desktop.browserViews.latest;
};

} // namespace orken
