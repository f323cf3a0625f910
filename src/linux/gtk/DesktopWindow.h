#pragma once

#include "linux/gtk/GtkViewHost.h"
#include "linux/loop/SignalConnection.h"
#include "linux/loop/Source.h"
#include "platform/FullScreenTransition.h"
#include "platform/NotificationCenter.h"
#include "platform/Window.h"
#include "view/ViewTree.h"

#include <gtk/gtk.h>

#include <functional>
#include <memory>
#include <vector>

namespace orken::desktop {

/// A window with product content. Main thread only.
class DesktopWindow final : public Window {
public:
    /// What a window asks of and tells its owner. The owner outlives it.
    struct Owner {
        NotificationCenter& notifications;
        WindowAlertGate& alertGate;
        std::function<void(DesktopWindow&)> gotKeyboard;
        /// The user wants it closed by the title bar or the window manager.
        std::function<void(DesktopWindow&)> userCloses;
        std::function<void(DesktopWindow&)> closed;
    };

    /// The content keeps its own size where `contentRect` has none.
    DesktopWindow(Owner owner, const Rect& contentRect, WindowStyleMask styleMask);
    ~DesktopWindow() override;

    [[nodiscard]] bool isVisible() const override;
    [[nodiscard]] WindowStyleMask styleMask() const override;
    void setTitle(const std::string& title) override;
    void center() override;
    void makeKeyAndOrderFront() override;
    void setContentView(std::unique_ptr<View> root) override;
    void toggleFullScreen() override;
    void close() override;

    /// No event reaches the views from here on.
    void silence();

    /// On a later turn of the main loop, and not before a first frame of the window is on the screen.
    void afterFirstFrame(std::function<void()> callback) { host_->afterFirstFrame(std::move(callback)); }

    [[nodiscard]] GtkWindow* gtkWindow() const { return window_; }

private:
    void watchSurface();
    void fullScreenReported();
    void post(FullScreenChange change);

    Owner owner_;
    WindowStyleMask styleMask_;
    GtkWindow* window_;
    std::unique_ptr<GtkViewHost> host_;
    std::shared_ptr<ViewTree> tree_;
    FullScreenTransition fullScreen_;
    Source deadline_;
    Size size_;
    std::vector<SignalConnection> connections_;
    SignalConnection layout_;
};

} // namespace orken::desktop
