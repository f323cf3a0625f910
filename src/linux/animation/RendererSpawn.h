#pragma once

#include <filesystem>
#include <optional>
#include <sys/types.h>

namespace orken::desktop {

struct RendererDescriptors {
    int socket = -1;
    int pixels = -1;
    int document = -1;
};

/// Starts the renderer program with these descriptors at their places, an empty environment, no standard input or
/// output and nothing else of this process. Standard error is shared. Main thread: the renderer dies with the thread
/// that has started it. Absent when it cannot be started.
[[nodiscard]] std::optional<pid_t> spawnRenderer(const std::filesystem::path& program,
                                                 const RendererDescriptors& descriptors);

} // namespace orken::desktop
