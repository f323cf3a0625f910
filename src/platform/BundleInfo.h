#pragma once

#include "foundation/NonCopyable.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

namespace orken {

inline constexpr const char* kBundleShortVersionKey = "CFBundleShortVersionString";

/// A value of the bundle's information table: no such key, a text, or a number.
using InfoValue = std::variant<std::monostate, std::string, double>;

/// The information table of the running bundle. Any thread.
class BundleInfo : NonCopyable {
public:
    virtual ~BundleInfo() = default;

    [[nodiscard]] virtual InfoValue infoValue(const std::string& key) const = 0;

    /// Folder of the bundle's resources, absolute; it may be missing.
    [[nodiscard]] virtual std::filesystem::path resourcesFolder() const = 0;
};

/// Absent when the key is missing or its value is not a text.
[[nodiscard]] std::optional<std::string> infoText(const BundleInfo& bundle, const std::string& key);

} // namespace orken
