#include "simulated/SimulatedWindows.h"

namespace orken::simulated {

namespace {

constexpr WindowStyleMask kOrdinary = 15;

} // namespace

SimulatedWindows::SimulatedWindows(MainLoop& loop, NotificationCenter& notifications, Journal& journal,
                                   DesktopOptions options)
    : surroundings_{loop, notifications, journal, registry_, options}
{
    if (options.permanentPanel) {
        permanentPanel_ = add(WindowKind::panel, windowStyle::kTitled);
    }
    loop.addSource([this] {
        bool worked = false;
        for (const auto& window : list()) {
            worked |= window->isVisible() ? window->content().runFrame() : window->content().redraw();
        }
        return worked;
    });
}

std::shared_ptr<Window> SimulatedWindows::makeWindow(const Rect& contentRect, WindowStyleMask styleMask)
{
    surroundings_.loop.requireMainThread();
    surroundings_.journal.add("make window " + std::to_string(static_cast<int>(contentRect.width)) + "x" +
                              std::to_string(static_cast<int>(contentRect.height)) + " style " +
                              std::to_string(styleMask));
    return add(WindowKind::application, styleMask);
}

void SimulatedWindows::openGroupWindow(const WindowGroup& group)
{
    const auto window = add(WindowKind::application, kOrdinary);
    window->onClose = [this, weak = std::weak_ptr(window)] {
        const auto closed = weak.lock();
        registry_.remove(*closed);
        // The pressed button may be inside: the widgets go on a later turn.
        surroundings_.loop.later(Seconds{0}, [closed] { closed->dropContent(); });
    };
    window->setTitle(group.title);
    window->setContentView(group.content());
    window->makeKeyAndOrderFront();
}

SimulatedWindows::WindowPtr SimulatedWindows::openToolkitWindow(const std::string& title)
{
    const auto window = add(WindowKind::toolkit, kOrdinary);
    window->onClose = [this, &closed = *window] { registry_.remove(closed); };
    window->setTitle(title);
    window->makeKeyAndOrderFront();
    return window;
}

SimulatedWindows::WindowPtr SimulatedWindows::showPanel(std::function<void()> onClose)
{
    const bool usesPermanent = permanentPanel_ && !permanentPanel_->isVisible();
    const auto panel = usesPermanent ? permanentPanel_ : add(WindowKind::panel, windowStyle::kTitled);
    panel->onClose = std::move(onClose);
    panel->setVisible(true);
    registry_.gotKeyboard(*panel);
    return panel;
}

void SimulatedWindows::hidePanel(const WindowPtr& panel)
{
    panel->setVisible(false);
    panel->onClose = [] {};
    if (panel != permanentPanel_) {
        registry_.remove(*panel);
    }
}

void SimulatedWindows::userCloses(const WindowPtr& window)
{
    if (registry_.isLastVisibleApplicationWindow(*window)) {
        onLastClosed();
    } else {
        window->close();
    }
}

std::vector<SimulatedWindows::WindowPtr> SimulatedWindows::list() const
{
    std::vector<WindowPtr> windows;
    for (const auto& window : registry_.all()) {
        windows.push_back(std::static_pointer_cast<SimulatedWindow>(window));
    }
    return windows;
}

SimulatedWindows::WindowPtr SimulatedWindows::find(const std::string& title) const
{
    for (const auto& window : list()) {
        if (window->title() == title) {
            return window;
        }
    }
    return nullptr;
}

SimulatedWindows::WindowPtr SimulatedWindows::add(WindowKind kind, WindowStyleMask styleMask)
{
    auto window = std::make_shared<SimulatedWindow>(surroundings_, kind, styleMask);
    registry_.add(window, kind);
    return window;
}

} // namespace orken::simulated
