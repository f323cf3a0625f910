#pragma once

#include "platform/RunningApplications.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orken::desktop {

/// A window as a window system tells of it.
struct ClientWindow {
    std::uint32_t id = 0;
    /// Absent where it is not known, and for a process of another machine.
    std::optional<int> processIdentifier;
    /// Stands for the whole program where the process is not known.
    std::optional<std::uint32_t> leader;
    /// Both parts of the window class; empty when it has none.
    std::string instanceName;
    std::string className;
    bool isDesktop = false;
    bool isDock = false;
};

/// What the machine says about a program by its window class.
struct InstalledProgram {
    std::string identifier;
    std::string localizedName;
    bool isFileManager = false;
};

/// What has to be known of the machine to tell the user's applications from what carries the session.
struct SessionFacts {
    int ownProcess = 0;
    std::string ownBundleIdentifier;
    std::optional<int> windowManagerProcess;
    /// The window in which the client was started.
    std::optional<std::uint32_t> startWindow;
    /// The process is one of those that the client descends from.
    std::function<bool(int)> isAncestor;
    /// Another process of the client's own.
    std::function<bool(int)> isOwn;
    std::function<std::optional<InstalledProgram>(const ClientWindow&)> installedProgram;
};

/// One application with the windows that make it up.
struct ApplicationGroup {
    RunningApplication application;
    /// Absent where it is not known.
    std::optional<int> processIdentifier;
    std::vector<std::uint32_t> windows;
};

/// Groups windows by process, else by leader, else each alone, in the order in which the applications appear. Left out
/// is what must not be asked to quit: what the session cannot do without, what the client was started by, and the
/// client's own other processes. The handles are null.
[[nodiscard]] std::vector<ApplicationGroup> groupApplications(const std::vector<ClientWindow>& windows,
                                                              const SessionFacts& facts);

} // namespace orken::desktop
