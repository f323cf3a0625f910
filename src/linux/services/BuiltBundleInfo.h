#pragma once

#include "linux/services/InstalledFolders.h"
#include "platform/BundleInfo.h"

#include <utility>

namespace orken::desktop {

/// The information table that the build has fixed, which is the version alone, and the folder of the installed client.
class BuiltBundleInfo final : public BundleInfo {
public:
    explicit BuiltBundleInfo(std::string shortVersion) : shortVersion_(std::move(shortVersion)) {}

    [[nodiscard]] InfoValue infoValue(const std::string& key) const override
    {
        return key == kBundleShortVersionKey ? InfoValue(shortVersion_) : InfoValue();
    }

    [[nodiscard]] std::filesystem::path resourcesFolder() const override { return desktop::resourcesFolder(); }

private:
    std::string shortVersion_;
};

} // namespace orken::desktop
