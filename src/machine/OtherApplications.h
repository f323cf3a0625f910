#pragma once

#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/Console.h"
#include "platform/RunningApplications.h"

#include <span>
#include <string>
#include <string_view>

namespace orken {

/// Keeps the user's other applications closed while the session runs: they are asked to quit, never made to. Main
/// thread only.
class OtherApplications {
public:
    struct Ports {
        RunningApplications& runningApplications;
        Alerts& alerts;
        Application& application;
        Console& console;
    };

    OtherApplications(const Ports& ports, std::string bundleIdentifier)
        : ports_(ports), bundleIdentifier_(std::move(bundleIdentifier))
    {
    }

    [[nodiscard]] bool isClosable(const RunningApplication& application) const;

    /// Names them and asks for the user's agreement; anything else ends the client. Without any, nothing is shown.
    void closeOtherApplications();

    /// Asks all of them but the system's own components, without a word.
    void terminateOtherApplications();

private:
    /// The client itself, or one whose identifier is the client's or among these.
    [[nodiscard]] bool isKept(const RunningApplication& application,
                              std::span<const std::string_view> identifiers) const;

    Ports ports_;
    std::string bundleIdentifier_;
};

} // namespace orken
