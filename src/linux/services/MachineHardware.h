#pragma once

#include "platform/HardwareRegistry.h"

#include <filesystem>
#include <vector>

namespace orken::desktop {

/// The machine's identity as systemd and D-Bus keep it (machine-id(5)). The serial number of the board is readable by
/// the administrator only and missing in virtual machines, so it would change with the user.
class MachineHardware final : public HardwareRegistry {
public:
    /// The first of the files that can be read and is text counts, a blank one too.
    explicit MachineHardware(std::vector<std::filesystem::path> files = {"/etc/machine-id",
                                                                         "/var/lib/dbus/machine-id"});

    [[nodiscard]] std::optional<std::string> platformExpertSerial() const override;

private:
    std::vector<std::filesystem::path> files_;
};

} // namespace orken::desktop
