#pragma once

#include "linux/gtk/DesktopScreens.h"
#include "linux/gtk/DesktopWindows.h"
#include "linux/loop/GObjectPtr.h"
#include "linux/loop/Source.h"
#include "platform/Application.h"
#include "platform/TerminationLatch.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orken::desktop {

/// The application's life over GTK. Main thread only.
class DesktopApplication final : public Application {
public:
    /// What the application needs of the rest of the desktop.
    struct Hooks {
        /// The start window is on the screen.
        std::function<void()> started;
        /// The delegate's handler has returned: no queue, timer, alert or engine callback reaches the product any more.
        std::function<void()> stopProduct;
        /// Clean-up that was started by the handler is still under way.
        std::function<bool()> isCleaningUp;
        /// A nested main loop is on the stack, so the process cannot end by returning.
        std::function<bool()> isNested;
    };

    DesktopApplication(std::string identifier, DesktopWindows& windows, DesktopScreens& screens, Hooks hooks)
        : identifier_(std::move(identifier)), windows_(windows), screens_(screens), hooks_(std::move(hooks))
    {
    }

    [[nodiscard]] int run(ApplicationDelegate& delegate, const WindowGroup& group) override;
    void terminate() override;

    /// The first part of `run`: the group's window is on its way to the screen. Absent when the main loop is to be
    /// served from here on, else the process's exit status.
    [[nodiscard]] std::optional<int> launch(ApplicationDelegate& delegate, const WindowGroup& group);

    [[nodiscard]] bool isTerminating() const override { return latch_.isRequested(); }

private:
    void watchSignals();
    void activate();
    void openGroupWindow();
    void finishCleanUp();

    std::string identifier_;
    DesktopWindows& windows_;
    DesktopScreens& screens_;
    Hooks hooks_;
    TerminationLatch latch_;
    ApplicationDelegate* delegate_ = nullptr;
    WindowGroup group_;
    GObjectPtr<GtkApplication> application_;
    SignalConnection activated_;
    std::vector<Source> signals_;
    bool launched_ = false;
    bool ended_ = false;
};

} // namespace orken::desktop
