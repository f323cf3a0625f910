#pragma once

#include "platform/ContentsReader.h"
#include "platform/HardwareRegistry.h"
#include "platform/Ports.h"
#include "provider/Endpoints.h"

#include <optional>
#include <string>

namespace orken {

/// What callers put in place of an absent serial number.
inline constexpr const char* kUnknownSerialNumber = "Unknown";

/// How the machine names itself to the provider. Nothing is cached: each call asks the system or the network again. An
/// empty text is a value, not an absent one.
class DeviceIdentity {
public:
    struct Ports {
        const HardwareRegistry& hardware;
        ContentsReader& contentsReader;
    };

    DeviceIdentity(const Ports& ports, std::string ipEchoURL) : ports_(ports), ipEchoURL_(std::move(ipEchoURL)) {}

    /// Trimmed; absent when the machine has none. Any thread.
    [[nodiscard]] std::optional<std::string> platformSerialNumber() const;

    /// One blocking request; the trimmed body, whatever the response's status, or absent when there was no readable
    /// answer. Main thread only.
    [[nodiscard]] std::optional<std::string> fetchPublicIPAddress() const;

private:
    Ports ports_;
    std::string ipEchoURL_;
};

/// This machine's, as its desktop and the provider's echo tell it.
[[nodiscard]] DeviceIdentity deviceIdentity(const Ports& ports, const Endpoints& endpoints);

} // namespace orken
