#include "crypto/DeviceIdentity.h"

#include "foundation/Text.h"

namespace orken {

std::optional<std::string> DeviceIdentity::platformSerialNumber() const
{
    const auto serial = ports_.hardware.platformExpertSerial();
    return serial ? std::optional(trimmed(*serial)) : std::nullopt;
}

std::optional<std::string> DeviceIdentity::fetchPublicIPAddress() const
{
    const auto body = ports_.contentsReader.readText(ipEchoURL_);
    return body ? std::optional(trimmed(body.value())) : std::nullopt;
}

DeviceIdentity deviceIdentity(const Ports& ports, const Endpoints& endpoints)
{
    return {{.hardware = ports.hardware, .contentsReader = ports.contentsReader}, endpoints.ipEchoURL};
}

} // namespace orken
