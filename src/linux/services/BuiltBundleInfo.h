#pragma once

#include "platform/BundleInfo.h"

#include <utility>

namespace orken::desktop {

/// The information table that the build has fixed: the version alone.
class BuiltBundleInfo final : public BundleInfo {
public:
    explicit BuiltBundleInfo(std::string shortVersion) : shortVersion_(std::move(shortVersion)) {}

    [[nodiscard]] InfoValue infoValue(const std::string& key) const override
    {
        return key == kBundleShortVersionKey ? InfoValue(shortVersion_) : InfoValue();
    }

private:
    std::string shortVersion_;
};

} // namespace orken::desktop
