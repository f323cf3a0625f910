#pragma once

#include "linux/gtk/AlertPanel.h"
#include "linux/gtk/DesktopWindow.h"
#include "linux/gtk/KeyDownEvents.h"
#include "linux/gtk/ToolkitWindow.h"
#include "linux/loop/Source.h"
#include "platform/NotificationCenter.h"
#include "platform/WindowRegistry.h"
#include "platform/Windows.h"

#include <functional>
#include <memory>
#include <vector>

namespace orken::desktop {

/// This application's windows over GTK. Main thread only, after the toolkit has been initialised.
class DesktopWindows final : public Windows {
public:
    DesktopWindows(NotificationCenter& notifications, WindowAlertGate& alertGate, KeyMonitors& keyMonitors);
    ~DesktopWindows() override;

    /// Begins to watch the toolkit's own windows and all windows' keys; the permanent panel is in the list from here
    /// on.
    void start(std::function<void()> userQuits);

    /// The window of a group: as large as its content, and out of the list once it is closed.
    [[nodiscard]] std::shared_ptr<DesktopWindow> makeGroupWindow();

    [[nodiscard]] std::vector<std::shared_ptr<Window>> all() const override { return registry_.all(); }

    [[nodiscard]] std::shared_ptr<Window> key() const override { return registry_.key(); }

    [[nodiscard]] std::shared_ptr<Window> makeWindow(const Rect& contentRect, WindowStyleMask styleMask) override;

    /// The one for the outermost alert.
    [[nodiscard]] AlertPanel& permanentPanel() { return *permanentPanel_; }

    [[nodiscard]] std::shared_ptr<AlertPanel> addPanel();

    void removePanel(const AlertPanel& panel) { registry_.remove(panel); }

    /// The visible product window that alerts stand over; null when there is none.
    [[nodiscard]] GtkWindow* alertParent() const;

    /// Brings the first visible product window to the front.
    void presentFirst();

    /// No event reaches any view from here on.
    void silence();

private:
    std::shared_ptr<DesktopWindow> add(const Rect& contentRect, WindowStyleMask styleMask, bool inGroup);
    void userCloses(DesktopWindow& window);
    void closedGroupWindow(DesktopWindow& window);
    void syncToolkitWindows();

    NotificationCenter& notifications_;
    WindowAlertGate& alertGate_;
    KeyMonitors& keyMonitors_;
    std::function<void()> userQuits_;
    WindowRegistry registry_;
    std::vector<std::shared_ptr<DesktopWindow>> windows_;
    /// Their content may still be at work.
    std::vector<std::shared_ptr<DesktopWindow>> closedWindows_;
    Source destruction_;
    std::vector<std::shared_ptr<ToolkitWindow>> toolkitWindows_;
    std::shared_ptr<AlertPanel> permanentPanel_;
    SignalConnection toplevelsChanged_;
    std::unique_ptr<KeyDownEvents> keyDownEvents_;
};

} // namespace orken::desktop
