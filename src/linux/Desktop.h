#pragma once

#include "linux/LazyEngine.h"
#include "linux/applications/X11Applications.h"
#include "linux/gtk/DesktopAlerts.h"
#include "linux/gtk/DesktopAnimationSurface.h"
#include "linux/gtk/DesktopApplication.h"
#include "linux/gtk/DesktopScreens.h"
#include "linux/gtk/DesktopWindows.h"
#include "linux/services/BlockingReader.h"
#include "linux/services/BuiltBundleInfo.h"
#include "linux/services/DesktopWorkspace.h"
#include "linux/services/HttpSession.h"
#include "linux/services/LocalFiles.h"
#include "linux/services/LoopTimers.h"
#include "linux/services/MachineHardware.h"
#include "linux/services/MainLoopQueue.h"
#include "linux/services/StandardConsole.h"
#include "linux/services/SystemClock.h"
#include "linux/services/SystemRandom.h"
#include "platform/AlertStack.h"
#include "platform/KeyMonitors.h"
#include "platform/NotificationCenter.h"

#include <optional>
#include <string>

namespace orken::desktop {

struct DesktopSettings {
    std::string bundleIdentifier;
    /// Short version of the bundle.
    std::string version;
    /// Trusted by the URL session in place of the system's authorities; for a provider on this machine.
    std::optional<std::string> certificateAuthorityFile;
    /// Of the first page, host or host:port: the engine connects to it while the start window is open. Empty: to none.
    std::string expectedHost;
};

/// Every port of the Linux desktop. Making one does no work beyond the process's own settings; the toolkit starts with
/// the application. One at a time in a process, main thread only.
class Desktop {
public:
    explicit Desktop(const DesktopSettings& settings);

    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

private:
    // In order of construction: what others are made of comes first.
    bool renderNode_;
    AlertStack alertStack_;
    WindowAlertGate alertGate_{alertStack_};
    Subscription alertsEnded_;

public:
    NotificationCenter notifications;
    KeyMonitors keyMonitors;
    MainLoopQueue mainQueue;
    LoopTimers timers{alertStack_};
    StandardConsole console;
    SystemClock clock;
    SystemRandom random;
    BuiltBundleInfo bundle;
    LocalFiles files;
    DesktopWorkspace workspace;
    X11Applications runningApplications;
    MachineHardware hardware;
    DesktopAnimationSurfaces animationSurfaces;
    /// Its background queue has documents prepared by the surfaces.
    HttpSession urlSession;
    BlockingReader contentsReader;
    CookieStorage& cookies{urlSession};
    LazyEngine engine;
    BrowserViews& browserViews{engine};
    WebsiteDataStore& websiteData{engine};
    DesktopWindows windows{notifications, alertGate_, keyMonitors};
    DesktopScreens screens;
    DesktopAlerts alerts{alertStack_, windows, alertGate_};
    DesktopApplication application;
};

} // namespace orken::desktop
