#pragma once

#include "platform/Console.h"
#include "platform/Files.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace orken {

/// The client's entry in the user's saved-application-state area, with a small counter file in it. Each outcome is one
/// line on the console; nothing is reported to the caller. Main thread only.
class SavedState {
public:
    SavedState(Files& files, Console& console, std::string kAppBundleIdentifier)
        : files_(files), console_(console), kAppBundleIdentifier_(std::move(kAppBundleIdentifier))
    {
    }

    void removeSavedStateDirectory();

    /// Raises the counter by one, up to its greatest value; without a counter, writes a file with 0.
    void updateRestoreCount();

private:
    [[nodiscard]] std::filesystem::path directory() const;
    void createDefaultRestoreCountFile(const std::filesystem::path& file);
    [[nodiscard]] Outcome<void> tryCreateDefaultFile(const std::filesystem::path& file);
    void incrementRestoreCount(std::int64_t current, const std::filesystem::path& file);
    void writeRestoreCount(std::int64_t value, const std::filesystem::path& file);
    [[nodiscard]] Outcome<void> write(std::int64_t value, const std::filesystem::path& file);

    Files& files_;
    Console& console_;
    std::string kAppBundleIdentifier_;
};

} // namespace orken
