#pragma once

#include "linux/applications/InstalledPrograms.h"
#include "linux/applications/X11Connection.h"
#include "platform/RunningApplications.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace orken::desktop {

/// The running applications of an X11 session, as its window manager lists their windows (EWMH 1.5). Without X11, or
/// without such a window manager, the list is empty and one line on standard error says so. Main thread only.
class X11Applications final : public RunningApplications {
public:
    /// `displayName` names the X server that the toolkit shows the client on; absent where it is none.
    X11Applications(std::string bundleIdentifier, std::function<std::optional<std::string>()> displayName)
        : bundleIdentifier_(std::move(bundleIdentifier)), displayName_(std::move(displayName))
    {
    }

    [[nodiscard]] std::vector<RunningApplication> all() override;
    [[nodiscard]] bool isCurrent(const RunningApplication& application) const override;
    bool terminate(const RunningApplication& application) override;

private:
    /// Null when there is none.
    X11Connection* connection();
    [[nodiscard]] SessionFacts factsAbout(std::optional<int> windowManagerProcess);
    void reportOnce(const char* reason);
    void requestClose(xcb_window_t window, bool byManager);

    std::string bundleIdentifier_;
    std::function<std::optional<std::string>()> displayName_;
    std::unique_ptr<X11Connection> connection_;
    std::unique_ptr<InstalledPrograms> programs_;
    bool hasReported_ = false;
};

} // namespace orken::desktop
