#pragma once

#include "linux/loop/GObjectPtr.h"
#include "platform/Window.h"

#include <gtk/gtk.h>

namespace orken::desktop {

/// A window that the toolkit or the engine has opened, such as the web inspector. Main thread only.
class ToolkitWindow final : public Window {
public:
    explicit ToolkitWindow(GtkWindow* window) : window_(GObjectPtr<GtkWindow>::share(window)) {}

    [[nodiscard]] bool isVisible() const override { return gtk_widget_get_visible(GTK_WIDGET(window_.get())) != FALSE; }

    [[nodiscard]] WindowStyleMask styleMask() const override { return windowStyle::kTitled; }

    void setTitle(const std::string&) override {}

    void center() override {}

    void makeKeyAndOrderFront() override { gtk_window_present(window_.get()); }

    void setContentView(std::unique_ptr<View>) override {}

    void toggleFullScreen() override {}

    /// Its own orderly close.
    void close() override { gtk_window_close(window_.get()); }

    [[nodiscard]] GtkWindow* gtkWindow() const { return window_.get(); }

private:
    GObjectPtr<GtkWindow> window_;
};

} // namespace orken::desktop
