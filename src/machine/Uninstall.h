#pragma once

#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/Console.h"
#include "platform/Files.h"

namespace orken {

/// Where the client is installed. A copy that runs from anywhere else removes the one at this place, never itself.
inline constexpr const char* kInstalledBundlePath = "/Applications/Orken.app";

/// Removal of the installed client. Main thread only.
class Uninstall {
public:
    struct Ports {
        Files& files;
        Alerts& alerts;
        Application& application;
        Console& console;
    };

    explicit Uninstall(const Ports& ports) : ports_(ports) {}

    /// Asks first. After an agreement the application ends, whether or not there was something to remove.
    void confirmUninstall();

    /// Removes the bundle and prints the outcome.
    void removeInstalledApplication();

private:
    Ports ports_;
};

} // namespace orken
