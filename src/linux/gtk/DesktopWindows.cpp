#include "linux/gtk/DesktopWindows.h"

#include <algorithm>

namespace orken::desktop {

namespace {

/// The web inspector is the one kind of window that appears in the process without being ours.
bool isForeign(GtkWindow* window)
{
    const char* type = G_OBJECT_TYPE_NAME(window);
    return g_str_has_prefix(type, "WebKit") != FALSE;
}

std::vector<GtkWindow*> foreignToplevels()
{
    std::vector<GtkWindow*> windows;
    GListModel* toplevels = gtk_window_get_toplevels();
    for (guint i = 0; i < g_list_model_get_n_items(toplevels); ++i) {
        auto* window = static_cast<GtkWindow*>(g_list_model_get_item(toplevels, i));
        if (isForeign(window)) {
            windows.push_back(window);
        }
        g_object_unref(window);
    }
    return windows;
}

} // namespace

DesktopWindows::DesktopWindows(NotificationCenter& notifications, WindowAlertGate& alertGate, KeyMonitors& keyMonitors)
    : notifications_(notifications), alertGate_(alertGate), keyMonitors_(keyMonitors),
      permanentPanel_(std::make_shared<AlertPanel>())
{
    registry_.add(permanentPanel_, WindowKind::panel);
}

DesktopWindows::~DesktopWindows() = default;

void DesktopWindows::start(std::function<void()> userQuits)
{
    userQuits_ = std::move(userQuits);
    keyDownEvents_ = std::make_unique<KeyDownEvents>(keyMonitors_);
    toplevelsChanged_ = SignalConnection::make<void(GListModel*, guint, guint, guint)>(
        gtk_window_get_toplevels(), "items-changed",
        [this](GListModel*, guint, guint, guint) { syncToolkitWindows(); });
}

std::shared_ptr<DesktopWindow> DesktopWindows::makeGroupWindow()
{
    using namespace windowStyle;
    return add({}, kTitled | kClosable | kMiniaturizable | kResizable, true);
}

std::shared_ptr<Window> DesktopWindows::makeWindow(const Rect& contentRect, WindowStyleMask styleMask)
{
    return add(contentRect, styleMask, false);
}

std::shared_ptr<DesktopWindow> DesktopWindows::add(const Rect& contentRect, WindowStyleMask styleMask, bool inGroup)
{
    auto window = std::make_shared<DesktopWindow>(
        DesktopWindow::Owner{.notifications = notifications_,
                             .alertGate = alertGate_,
                             .gotKeyboard = [this](DesktopWindow& it) { registry_.gotKeyboard(it); },
                             .userCloses = [this](DesktopWindow& it) { userCloses(it); },
                             .closed =
                                 [this, inGroup](DesktopWindow& it) {
                                     if (inGroup) {
                                         closedGroupWindow(it);
                                     }
                                 }},
        contentRect, styleMask);
    windows_.push_back(window);
    registry_.add(window, WindowKind::application);
    return window;
}

void DesktopWindows::userCloses(DesktopWindow& window)
{
    if (registry_.isLastVisibleApplicationWindow(window)) {
        userQuits_();
    } else {
        window.close();
    }
}

void DesktopWindows::closedGroupWindow(DesktopWindow& window)
{
    registry_.remove(window);
    const auto found =
        std::find_if(windows_.begin(), windows_.end(), [&](const auto& entry) { return entry.get() == &window; });
    if (found != windows_.end()) {
        window.silence();
        closedWindows_.push_back(std::move(*found));
        windows_.erase(found);
        destruction_ = Source::idle(G_PRIORITY_LOW, [this] { closedWindows_.clear(); });
    }
}

std::shared_ptr<AlertPanel> DesktopWindows::addPanel()
{
    auto panel = std::make_shared<AlertPanel>();
    registry_.add(panel, WindowKind::panel);
    return panel;
}

GtkWindow* DesktopWindows::alertParent() const
{
    const auto visible =
        std::find_if(windows_.begin(), windows_.end(), [](const auto& window) { return window->isVisible(); });
    return visible == windows_.end() ? nullptr : (*visible)->gtkWindow();
}

void DesktopWindows::presentFirst()
{
    if (GtkWindow* window = alertParent()) {
        gtk_window_present(window);
    }
}

void DesktopWindows::silence()
{
    for (const auto& window : windows_) {
        window->silence();
    }
}

void DesktopWindows::syncToolkitWindows()
{
    const auto present = foreignToplevels();
    std::erase_if(toolkitWindows_, [&](const auto& known) {
        const bool gone = std::find(present.begin(), present.end(), known->gtkWindow()) == present.end();
        if (gone) {
            registry_.remove(*known);
        }
        return gone;
    });
    for (GtkWindow* window : present) {
        const bool known = std::any_of(toolkitWindows_.begin(), toolkitWindows_.end(),
                                       [&](const auto& entry) { return entry->gtkWindow() == window; });
        if (!known) {
            toolkitWindows_.push_back(std::make_shared<ToolkitWindow>(window));
            registry_.add(toolkitWindows_.back(), WindowKind::toolkit);
        }
    }
}

} // namespace orken::desktop
