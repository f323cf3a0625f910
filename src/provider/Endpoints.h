#pragma once

#include <string>
#include <string_view>

namespace orken {

/// The provider's addresses and the client's own names, fixed when the client is built.
struct Endpoints {
    /// Reverse-DNS; names the caches folder and the saved state.
    std::string bundleIdentifier;
    /// Short version.
    std::string version;
    /// Content server, host or host:port.
    std::string contentHost;
    /// Login site, host or host:port.
    std::string loginHost;
    std::string mainPageURL;
    /// Host of the waiting animation, host or host:port.
    std::string animationHost;
    /// Answers with the caller's public address as text.
    std::string ipEchoURL;

    /// The first page of a session, the login page: https://LOGINHOST//accounts/login?param=SERIAL&xppKey=KEY with the
    /// application key. The serial number is inserted as it is.
    [[nodiscard]] std::string loginURL(std::string_view serial) const;

    [[nodiscard]] std::string updateImageURL() const { return "https://" + contentHost + "/program/mac/orkenv1.dmg"; }

    [[nodiscard]] std::string settingsURL() const { return "https://" + contentHost + "/settings/xpp.json"; }

    [[nodiscard]] std::string loadingAnimationURL() const
    {
        return "https://" + animationHost + "/a/4f99977e-1178-11ee-ba11-6f7eb2c6e070/BYMbhjCcMQ.json";
    }
};

/// The values that this build was configured with.
[[nodiscard]] Endpoints builtEndpoints();

} // namespace orken
