#pragma once

#include "machine/MachineServices.h"
#include "platform/Application.h"
#include "platform/BundleInfo.h"
#include "platform/Console.h"
#include "platform/MainQueue.h"
#include "platform/UrlSession.h"
#include "platform/Workspace.h"
#include "view/Element.h"
#include "view/State.h"

#include <functional>
#include <optional>
#include <string>

namespace orken {

/// Stops a client that the provider no longer serves. The request runs in the background; the message is always written
/// before the flag that shows the alert. Outlives every request that it starts. Main thread, where nothing else is
/// said.
class VersionGate {
public:
    struct Ports {
        const BundleInfo& bundle;
        UrlSession& urlSession;
        MainQueue& mainQueue;
        Console& console;
        Workspace& workspace;
        Application& application;
        Uninstall& uninstall;
    };

    VersionGate(const Ports& ports, std::string settingsURL) : ports_(ports), settingsURL_(std::move(settingsURL)) {}

    /// The running version; absent when the bundle names none as a text.
    [[nodiscard]] std::optional<std::string> appVersion() const;

    /// Returns at once. A version that is current changes neither state; the alert is never taken back.
    void checkAppVersion(State<std::string> appVersionMessage, State<bool> showUpdateAlert) const;

    /// The completion runs on the background queue, with nothing on any failure.
    void fetchRequiredVersion(std::function<void(std::optional<std::string>)> completion) const;

    /// Any thread. Prints what it compares.
    [[nodiscard]] bool isUpdateRequired(const std::string& current, const std::string& required) const;

    /// Both of its buttons end the client; the first one removes the installed one before, to make room for the update.
    [[nodiscard]] Alert updateAlert(const std::string& appVersionMessage, const std::string& downloadURL) const;

private:
    void checkAgainst(const std::optional<std::string>& required, const std::string& current,
                      const std::function<void(std::string)>& block) const;

    Ports ports_;
    std::string settingsURL_;
};

/// The gate of the provider's content server.
[[nodiscard]] VersionGate versionGate(const Ports& ports, const Endpoints& endpoints, MachineServices& machine);

} // namespace orken
