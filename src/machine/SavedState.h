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
    struct Ports {
        Files& files;
        Console& console;
    };

    SavedState(const Ports& ports, std::string bundleIdentifier)
        : ports_(ports), bundleIdentifier_(std::move(bundleIdentifier))
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

    Ports ports_;
    std::string bundleIdentifier_;
};

} // namespace orken
