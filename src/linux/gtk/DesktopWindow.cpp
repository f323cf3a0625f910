#include "linux/gtk/DesktopWindow.h"

#include "linux/gtk/WindowEnd.h"

#include <utility>

namespace orken::desktop {

namespace {

constexpr Seconds kFullScreenPatience{2};

GtkWindow* makeGtkWindow(const Rect& contentRect, WindowStyleMask styleMask)
{
    auto* window = GTK_WINDOW(gtk_window_new());
    if (contentRect.width > 0 && contentRect.height > 0) {
        gtk_window_set_default_size(window, static_cast<int>(contentRect.width), static_cast<int>(contentRect.height));
    }
    gtk_window_set_decorated(window, (styleMask & windowStyle::kTitled) != 0);
    gtk_window_set_deletable(window, (styleMask & windowStyle::kClosable) != 0);
    gtk_window_set_resizable(window, (styleMask & windowStyle::kResizable) != 0);
    return window;
}

} // namespace

DesktopWindow::DesktopWindow(Owner owner, const Rect& contentRect, WindowStyleMask styleMask)
    : owner_(std::move(owner)), styleMask_(styleMask), window_(makeGtkWindow(contentRect, styleMask)),
      host_(std::make_unique<GtkViewHost>(window_, owner_.alertGate))
{
    connections_.push_back(SignalConnection::make<gboolean(GtkWindow*)>(window_, "close-request", [this](GtkWindow*) {
        owner_.userCloses(*this);
        return TRUE;
    }));
    connections_.push_back(
        SignalConnection::make<void(GtkWindow*, GParamSpec*)>(window_, "notify::is-active", [this](GtkWindow*, auto*) {
            if (gtk_window_is_active(window_)) {
                owner_.gotKeyboard(*this);
            }
        }));
    connections_.push_back(SignalConnection::make<void(GtkWindow*, GParamSpec*)>(
        window_, "notify::fullscreened", [this](GtkWindow*, auto*) { fullScreenReported(); }));
    connections_.push_back(
        SignalConnection::make<void(GtkWidget*)>(window_, "realize", [this](GtkWidget*) { watchSurface(); }));
}

DesktopWindow::~DesktopWindow()
{
    silence();
    connections_.clear();
    // The widgets report to the tree and stand in the window: they go before both.
    host_.reset();
    destroyWindow(window_);
}

bool DesktopWindow::isVisible() const
{
    if (!gtk_widget_get_visible(GTK_WIDGET(window_))) {
        return false;
    }
    GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window_));
    return !surface || (gdk_toplevel_get_state(GDK_TOPLEVEL(surface)) & GDK_TOPLEVEL_STATE_MINIMIZED) == 0;
}

WindowStyleMask DesktopWindow::styleMask() const
{
    return fullScreen_.isFullScreen() ? styleMask_ | windowStyle::kFullScreen : styleMask_;
}

void DesktopWindow::setTitle(const std::string& title)
{
    gtk_window_set_title(window_, title.c_str());
}

void DesktopWindow::center()
{
    // The window manager places windows on this desktop, new ones in the middle or where there is room.
}

void DesktopWindow::makeKeyAndOrderFront()
{
    gtk_window_present(window_);
    owner_.gotKeyboard(*this);
}

void DesktopWindow::setContentView(std::unique_ptr<View> root)
{
    silence();
    tree_ = ViewTree::make(*host_, std::move(root));
}

void DesktopWindow::toggleFullScreen()
{
    if (!isVisible()) {
        return;
    }
    const auto change = fullScreen_.toggle();
    if (!change) {
        return;
    }
    post(*change);
    if (*change == FullScreenChange::willEnter) {
        gtk_window_fullscreen(window_);
    } else {
        gtk_window_unfullscreen(window_);
    }
    deadline_ = Source::after(kFullScreenPatience, [this] { fullScreen_.givenUp(); });
}

void DesktopWindow::close()
{
    if (!gtk_widget_get_visible(GTK_WIDGET(window_))) {
        return;
    }
    // Not destroyed here: the pressed button may be inside this window.
    gtk_widget_set_visible(GTK_WIDGET(window_), FALSE);
    owner_.closed(*this);
}

void DesktopWindow::silence()
{
    if (tree_) {
        tree_->detach();
    }
}

void DesktopWindow::watchSurface()
{
    GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window_));
    layout_ = SignalConnection::make<void(GdkSurface*, int, int)>(
        surface, "layout", [this](GdkSurface*, int width, int height) {
            const Size size{.width = static_cast<double>(width), .height = static_cast<double>(height)};
            if (std::exchange(size_, size) != size) {
                owner_.notifications.post(NotificationName::windowDidResize);
            }
        });
}

void DesktopWindow::fullScreenReported()
{
    for (const FullScreenChange change : fullScreen_.reported(gtk_window_is_fullscreen(window_) != FALSE)) {
        deadline_.end();
        post(change);
    }
}

void DesktopWindow::post(FullScreenChange change)
{
    owner_.notifications.post(notificationName(change));
}

} // namespace orken::desktop
