#pragma once

#include "provider/Http.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace orken::demo {

/// The provider's site: what it answers to which request. Knows nothing of connections.
class Site {
public:
    /// `firstPage` is where the address that clients sign in at leads to. With a settings file its bytes, read at every
    /// request, are the settings document.
    Site(std::string firstPage, std::string requiredVersion, std::optional<std::filesystem::path> settingsFile);
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    [[nodiscard]] Answer answer(const Request& request);

private:
    [[nodiscard]] Answer settings() const;

    std::string firstPage_;
    std::string requiredVersion_;
    std::optional<std::filesystem::path> settingsFile_;
    /// By path; GET and HEAD.
    std::map<std::string, std::function<Answer(const Request&)>> pages_;
};

} // namespace orken::demo
