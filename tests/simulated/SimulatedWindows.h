#pragma once

#include "platform/Application.h"
#include "platform/Windows.h"
#include "simulated/SimulatedWindow.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orken::simulated {

class SimulatedWindows final : public Windows, Part {
public:
    using WindowPtr = std::shared_ptr<SimulatedWindow>;

    SimulatedWindows(Common& common, DesktopOptions options) : Part(common)
    {
        if (options.permanentPanel) {
            permanentPanel_ = add(WindowKind::panel, windowStyle::kTitled);
        }
        loop_.addSource([this] {
            bool worked = false;
            for (const auto& window : list()) {
                worked |= window->isVisible() ? window->content().runFrame() : window->content().redraw();
            }
            return worked;
        });
    }

    [[nodiscard]] std::vector<std::shared_ptr<Window>> all() const override { return registry_.all(); }

    [[nodiscard]] std::shared_ptr<Window> key() const override { return registry_.key(); }

    [[nodiscard]] std::shared_ptr<Window> makeWindow(const Rect& contentRect, WindowStyleMask styleMask) override
    {
        loop_.requireMainThread();
        journal_.add("make window " + std::to_string(static_cast<int>(contentRect.width)) + "x" +
                     std::to_string(static_cast<int>(contentRect.height)) + " style " + std::to_string(styleMask));
        return add(WindowKind::application, styleMask);
    }

    // The desktop's side.
    /// An ordinary window of the application, on the screen.
    WindowPtr open(const std::string& title)
    {
        auto window = add(WindowKind::application, windowStyle::kTitled | windowStyle::kResizable);
        window->setTitle(title);
        window->makeKeyAndOrderFront();
        return window;
    }

    void openGroupWindow(const WindowGroup& group)
    {
        const auto window = open(group.title);
        window->onClose = [this, weak = std::weak_ptr(window)] {
            const auto closed = weak.lock();
            registry_.remove(*closed);
            // The pressed button may be inside: the widgets go on a later turn.
            loop_.later(Seconds{0}, [closed] { closed->dropContent(); });
        };
        window->setContentView(group.content());
    }

    /// The permanent panel for an outermost alert, else one of the alert's own.
    WindowPtr showPanel(std::function<void()> onClose)
    {
        const bool usesPermanent = permanentPanel_ && !permanentPanel_->isVisible();
        auto panel = usesPermanent ? permanentPanel_ : add(WindowKind::panel, windowStyle::kTitled);
        panel->onClose = std::move(onClose);
        panel->setVisible(true);
        registry_.gotKeyboard(*panel);
        return panel;
    }

    void hidePanel(const WindowPtr& panel)
    {
        panel->setVisible(false);
        panel->onClose = [] {};
        if (panel != permanentPanel_) {
            registry_.remove(*panel);
        }
    }

    /// The user's close of a window; `onLastClosed` when it leaves no window of the application.
    void userCloses(const WindowPtr& window)
    {
        if (registry_.isLastVisibleApplicationWindow(*window)) {
            onLastClosed();
        } else {
            window->close();
        }
    }

    std::function<void()> onLastClosed;

    /// In list order, hidden ones too.
    [[nodiscard]] std::vector<WindowPtr> list() const
    {
        std::vector<WindowPtr> windows;
        for (const auto& window : registry_.all()) {
            windows.push_back(std::static_pointer_cast<SimulatedWindow>(window));
        }
        return windows;
    }

    /// The window with this title, visible or not; null when there is none.
    [[nodiscard]] WindowPtr find(const std::string& title) const
    {
        for (const auto& window : list()) {
            if (window->title() == title) {
                return window;
            }
        }
        return nullptr;
    }

private:
    WindowPtr add(WindowKind kind, WindowStyleMask styleMask)
    {
        auto window = std::make_shared<SimulatedWindow>(common_, registry_, kind, styleMask);
        registry_.add(window, kind);
        return window;
    }

    WindowRegistry registry_;
    WindowPtr permanentPanel_;
};

} // namespace orken::simulated
