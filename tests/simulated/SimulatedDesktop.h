#pragma once

#include "platform/KeyMonitors.h"
#include "simulated/SimulatedAlerts.h"
#include "simulated/SimulatedAnimation.h"
#include "simulated/SimulatedBrowser.h"
#include "simulated/SimulatedFiles.h"
#include "simulated/SimulatedMachine.h"
#include "simulated/SimulatedNetwork.h"
#include "simulated/SimulatedWebsiteData.h"

namespace orken::simulated {

/// A whole desktop in memory. Tests hand its parts to the product and play the user and the outside.
class SimulatedDesktop : public Common {
public:
    explicit SimulatedDesktop(DesktopOptions options = {}) : windows(*this, options)
    {
        windows.onLastClosed = [this] { application.terminate(); };
        application.beforeEnd = [this] {
            alerts.abortAll();
            websiteData.finish();
        };
    }

    MainQueue& mainQueue{loop};
    Timers& timers{loop};
    KeyMonitors keyMonitors;
    SimulatedWindows windows;
    SimulatedApplication application{*this, windows};
    SimulatedAlerts alerts{*this, windows, application};
    SimulatedConsole console{*this};
    SimulatedClock clock;
    SimulatedRandom random;
    SimulatedScreens screens;
    SimulatedWorkspace workspace{*this};
    SimulatedApplications runningApplications{*this};
    SimulatedHardware hardware;
    SimulatedBundle bundle;
    SimulatedCookies cookies{*this};
    SimulatedFiles files{*this};
    SimulatedNetwork network{*this};
    UrlSession& urlSession{network};
    ContentsReader& contentsReader{network};
    SimulatedWebsiteData websiteData{*this};
    SimulatedBrowserViews browserViews{*this};
    SimulatedAnimationSurfaces animationSurfaces{*this};

    /// The visible window that shows the text; null when there is none.
    [[nodiscard]] SimulatedWindows::WindowPtr showing(const std::string& text) const
    {
        for (const auto& window : windows.list()) {
            if (window->isVisible() && window->content().shows(text)) {
                return window;
            }
        }
        return nullptr;
    }

    /// The user presses a button; what follows has not happened yet when this returns.
    void press(const std::string& button)
    {
        const auto window = showing(button);
        require(window && !loop.isModal() && !application.isTerminating(), "this cannot be pressed now: " + button);
        window->content().press(button);
    }

    /// The session manager or a signal asks the client to end.
    void quitFromOutside()
    {
        loop.later(Seconds{0}, [this] { application.terminate(); });
    }
};

} // namespace orken::simulated
