#pragma once

#include "platform/ContentsReader.h"
#include "platform/HardwareRegistry.h"

#include <optional>
#include <string>

namespace orken {

/// What callers put in place of an absent serial number.
inline constexpr const char* kUnknownSerialNumber = "Unknown";

/// How the machine names itself to the provider. Nothing is cached: each call asks the system or the network again. An
/// empty text is a value, not an absent one.
class DeviceIdentity {
public:
    DeviceIdentity(const HardwareRegistry& registry, ContentsReader& reader, std::string kIPEchoURL)
        : registry_(registry), reader_(reader), kIPEchoURL_(std::move(kIPEchoURL))
    {
    }

    /// Trimmed; absent when the machine has none. Any thread.
    [[nodiscard]] std::optional<std::string> platformSerialNumber() const;

    /// One blocking request; the trimmed body, whatever the response's status, or absent when there was no readable
    /// answer. Main thread only.
    [[nodiscard]] std::optional<std::string> fetchPublicIPAddress() const;

private:
    const HardwareRegistry& registry_;
    ContentsReader& reader_;
    std::string kIPEchoURL_;
};

} // namespace orken
