#include "crypto/DeviceIdentity.h"

#include "foundation/Text.h"

namespace orken {

std::optional<std::string> DeviceIdentity::platformSerialNumber() const
{
    const auto serial = registry_.platformExpertSerial();
    return serial ? std::optional(trimmed(*serial)) : std::nullopt;
}

std::optional<std::string> DeviceIdentity::fetchPublicIPAddress() const
{
    const auto body = reader_.readText(kIPEchoURL_);
    return body ? std::optional(trimmed(body.value())) : std::nullopt;
}

} // namespace orken
