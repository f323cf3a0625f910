#pragma once

#include "linux/gtk/FrameCallbacks.h"
#include "linux/gtk/ViewWidgets.h"
#include "linux/gtk/WindowAlert.h"
#include "view/ViewHost.h"

#include <map>
#include <memory>

namespace orken::desktop {

/// The view layer's seam over GTK widgets, for one window. Main thread only.
class GtkViewHost final : public ViewHost {
public:
    /// The window must outlive the host; `alerts` tells when alerts of this window may be seen.
    GtkViewHost(GtkWindow* window, WindowAlertGate& alerts);
    ~GtkViewHost() override;

    void apply(const Mutations& mutations, ViewEvents& events) override;

    void beforeNextFrame(std::function<void()> callback) override { frames_.beforeNext(std::move(callback)); }

    void afterFirstFrame(std::function<void()> callback) override { frames_.afterFirst(std::move(callback)); }

private:
    void take(const mutation::Create& step, ViewEvents& events);
    void take(const mutation::Delete& step, ViewEvents& events);
    void take(const mutation::Insert& step, ViewEvents& events);
    void take(const mutation::Remove& step, ViewEvents& events);
    void take(const mutation::Update& step, ViewEvents& events);
    void showAlert(const RenderNode& node, ViewEvents& events);

    GtkWindow* window_;
    WindowAlertGate& alertGate_;
    GtkWidget* content_;
    std::map<NodeId, std::unique_ptr<ViewWidgets>> widgets_;
    std::map<NodeId, std::unique_ptr<WindowAlert>> alerts_;
    FrameCallbacks frames_;
};

} // namespace orken::desktop
