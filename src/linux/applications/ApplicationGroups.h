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

/// Groups windows by process, else by leader, else each alone, in the order in which the applications appear. The
/// handles are null.
///
/// Spared, and therefore not in the list, are other programs that must never be asked to quit: window and session
/// managers, lock screens, policy agents, input methods, assistive programs and portals (`isSessionCritical`, by the
/// table in SystemComponents.cpp), whatever the client was started by with its terminal, and the client's own other
/// processes. File manager, desktop, dock and search get the identifiers that the product keeps as well; it keeps
/// settings daemons and wallpapers during a session only (machine/OtherApplications.cpp).
[[nodiscard]] std::vector<ApplicationGroup> groupApplications(const std::vector<ClientWindow>& windows,
                                                              const SessionFacts& facts);

} // namespace orken::desktop
