#pragma once

#include "platform/Workspace.h"

namespace orken::desktop {

/// The desktop's programs for addresses, and its file manager over D-Bus (org.freedesktop.FileManager1); where none
/// answers, the desktop's usual program for folders. One line on standard error names the file when there is neither.
/// Main thread only.
class DesktopWorkspace final : public Workspace {
public:
    bool open(const std::string& url) override;
    void activateFileViewer(const std::filesystem::path& file) override;
};

} // namespace orken::desktop
