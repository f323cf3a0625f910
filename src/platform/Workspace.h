#pragma once

#include <filesystem>

namespace orken {

/// What the desktop does for an application outside of its windows. Main thread only.
class Workspace {
public:
    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    /// Asks the file manager to show the folder of this file, an absolute path, with the file selected. Returns at
    /// once; nothing is reported back, and where there is no file manager nothing is shown.
    virtual void activateFileViewer(const std::filesystem::path& file) = 0;
};

} // namespace orken
