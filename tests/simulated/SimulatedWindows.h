#pragma once

#include "platform/Application.h"
#include "platform/Windows.h"
#include "simulated/SimulatedWindow.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orken::simulated {

class SimulatedWindows final : public Windows {
public:
    using WindowPtr = std::shared_ptr<SimulatedWindow>;

    SimulatedWindows(MainLoop& loop, NotificationCenter& notifications, Journal& journal, DesktopOptions options);

    [[nodiscard]] std::vector<std::shared_ptr<Window>> all() const override { return registry_.all(); }

    [[nodiscard]] std::shared_ptr<Window> key() const override { return registry_.key(); }

    [[nodiscard]] std::shared_ptr<Window> makeWindow(const Rect& contentRect, WindowStyleMask styleMask) override;

    // The desktop's side.
    void openGroupWindow(const WindowGroup& group);
    /// A window of the engine, such as its inspector.
    WindowPtr openToolkitWindow(const std::string& title);
    /// The permanent panel for an outermost alert, else one of the alert's own.
    WindowPtr showPanel(std::function<void()> onClose);
    void hidePanel(const WindowPtr& panel);

    /// The user's close of a window; `onLastClosed` when it leaves no window of the application.
    void userCloses(const WindowPtr& window);
    std::function<void()> onLastClosed;

    /// In list order, hidden ones too.
    [[nodiscard]] std::vector<WindowPtr> list() const;
    /// The window with this title, visible or not; null when there is none.
    [[nodiscard]] WindowPtr find(const std::string& title) const;

private:
    WindowPtr add(WindowKind kind, WindowStyleMask styleMask);

    WindowRegistry registry_;
    SimulatedWindow::Surroundings surroundings_;
    WindowPtr permanentPanel_;
};

} // namespace orken::simulated
