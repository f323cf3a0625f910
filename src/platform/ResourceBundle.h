#pragma once

#include <filesystem>
#include <optional>
#include <utility>

namespace orken {

/// Names a folder of resources: the application's own, or another one on disk.
class ResourceBundle {
public:
    [[nodiscard]] static ResourceBundle main() { return {}; }

    [[nodiscard]] static ResourceBundle at(std::filesystem::path folder)
    {
        ResourceBundle bundle;
        bundle.folder_ = std::move(folder);
        return bundle;
    }

    /// Absent for the application's own.
    [[nodiscard]] const std::optional<std::filesystem::path>& folder() const { return folder_; }

    bool operator==(const ResourceBundle&) const = default;

private:
    std::optional<std::filesystem::path> folder_;
};

} // namespace orken
