#pragma once

#include "platform/Alerts.h"
#include "platform/Window.h"

#include <gtk/gtk.h>

#include <functional>

namespace orken::desktop {

/// The window of application-modal alerts. Its toolkit window is made when it is first shown. Main thread only.
class AlertPanel final : public Window {
public:
    AlertPanel() = default;
    ~AlertPanel() override;

    /// `answer` gets the place of the pressed button, `closed` is called when the program closes the panel.
    void show(const Alert& alert, GtkWindow* parent, const std::function<void(std::size_t)>& answer,
              std::function<void()> closed);
    void hide();

    [[nodiscard]] bool isVisible() const override;

    [[nodiscard]] WindowStyleMask styleMask() const override { return windowStyle::kTitled; }

    void setTitle(const std::string&) override {}

    void center() override {}

    void makeKeyAndOrderFront() override {}

    void setContentView(std::unique_ptr<View>) override {}

    /// Panels have no full screen. A hidden one must not even be asked: the next alert would open in it.
    void toggleFullScreen() override {}

    void close() override;

private:
    GtkWindow* window_ = nullptr;
    std::function<void()> closed_;
};

} // namespace orken::desktop
