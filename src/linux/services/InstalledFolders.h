#pragma once

#include <filesystem>

namespace orken::desktop {

// Where the client's own files are. They are found from the running program, so that the client works wherever it was
// installed or built. Any thread.

/// Folder of the parts that are programs or modules of their own, absolute.
[[nodiscard]] std::filesystem::path modulesFolder();

/// Folder of the resources, absolute; it may be missing.
[[nodiscard]] std::filesystem::path resourcesFolder();

} // namespace orken::desktop
