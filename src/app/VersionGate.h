#pragma once

#include "platform/Application.h"
#include "platform/BundleInfo.h"
#include "view/Element.h"
#include "view/State.h"

#include <optional>
#include <string>

namespace orken {

/// Stops a client that the provider no longer serves. It writes the message first, then the flag that shows the alert.
/// Main thread only.
class VersionGate {
public:
    VersionGate(const BundleInfo& bundle, Application& application) : bundle_(bundle), application_(application) {}

    /// The running version; absent when the bundle names none as a text.
    [[nodiscard]] std::optional<std::string> appVersion() const;

    /// Returns at once.
    void checkAppVersion(State<std::string> appVersionMessage, State<bool> showUpdateAlert) const;

    /// Both of its buttons end the client.
    [[nodiscard]] AlertDescription updateAlert(const std::string& appVersionMessage,
                                               const std::string& downloadURL) const;

private:
    const BundleInfo& bundle_;
    Application& application_;
};

} // namespace orken
