#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace orken::desktop {

struct HttpOptions {
    /// PEM file of the authorities to trust in the place of the system's; certificates are checked either way.
    std::optional<std::string> certificateAuthorityFile;
    /// Of a decoded body; a larger one is an error.
    std::size_t maximumBodyBytes = 0;
    /// Without traffic.
    unsigned timeoutSeconds = 60;
};

} // namespace orken::desktop
