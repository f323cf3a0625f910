#pragma once

#include "linux/applications/ApplicationGroups.h"
#include "linux/loop/GObjectPtr.h"

#include <gio/gio.h>

#include <map>
#include <optional>
#include <string>

namespace orken::desktop {

/// The desktop files of this machine by window class, read once and again after programs were installed or removed.
/// Main thread only.
class InstalledPrograms {
public:
    InstalledPrograms();
    InstalledPrograms(const InstalledPrograms&) = delete;
    InstalledPrograms& operator=(const InstalledPrograms&) = delete;
    ~InstalledPrograms();

    /// By the class that the desktop file names, else by the desktop file's own name.
    [[nodiscard]] std::optional<InstalledProgram> find(const ClientWindow& window);

private:
    void read();

    GObjectPtr<GAppInfoMonitor> monitor_;
    gulong changed_;
    bool isRead_ = false;
    std::map<std::string, InstalledProgram> byClass_;
    std::map<std::string, InstalledProgram> byName_;
};

} // namespace orken::desktop
