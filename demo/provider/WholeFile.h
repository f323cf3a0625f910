#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace orken::demo {

/// Writes beside the file and renames, so a reader finds the old content or the new one, never half. Throws Failure.
void writeWholeFile(const std::filesystem::path& path, std::string_view content);

/// Absent when the file cannot be read.
[[nodiscard]] std::optional<std::string> readWholeFile(const std::filesystem::path& path);

} // namespace orken::demo
