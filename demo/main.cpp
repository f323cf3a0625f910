#include "app/VistroApp.h"
#include "linux/Desktop.h"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <optional>

// The client on the demo provider: the same product and desktop, with addresses on this machine.

namespace {

struct Provider {
    orken::Endpoints endpoints;
    std::string certificateAuthority;
};

/// What the demo provider wrote when it was ready.
std::optional<Provider> readProvider(const char* readyFile)
{
    std::ifstream file(readyFile);
    if (!file) {
        std::cerr << "orken-demo: " << readyFile << " cannot be read\n";
        return std::nullopt;
    }
    try {
        const auto ready = nlohmann::json::parse(file);
        const std::string host = ready.at("host").get<std::string>();
        const int port = ready.at("port").get<int>();
        const std::string main = host + ":" + std::to_string(port);
        const std::string echo = host + ":" + std::to_string(ready.at("echoPort").get<int>());
        Provider provider{.endpoints = orken::builtEndpoints(),
                          .certificateAuthority = ready.at("certificateAuthority").get<std::string>()};
        provider.endpoints.contentHost = main;
        // Another login site than the rest, for trying out what happens when it cannot be reached.
        provider.endpoints.loginHost = host + ":" + std::to_string(ready.value("loginPort", port));
        provider.endpoints.animationHost = main;
        provider.endpoints.mainPageURL = "https://" + main + "/";
        provider.endpoints.ipEchoURL = "https://" + echo + "/";
        return provider;
    } catch (const std::exception& error) {
        std::cerr << "orken-demo: " << readyFile << ": " << error.what() << '\n';
        return std::nullopt;
    }
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::cerr << "usage: orken-demo READYFILE (written by orken-demo-provider)\n";
        return EXIT_FAILURE;
    }
    const auto provider = readProvider(arguments[1]);
    if (!provider) {
        return EXIT_FAILURE;
    }
    orken::desktop::Desktop desktop({.bundleIdentifier = provider->endpoints.bundleIdentifier,
                                     .version = provider->endpoints.version,
                                     .certificateAuthorityFile = provider->certificateAuthority,
                                     .expectedHost = provider->endpoints.loginHost});
    orken::VistroApp app(orken::portsOf(desktop), provider->endpoints);
    return app.main();
}
