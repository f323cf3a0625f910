#pragma once

#include "platform/FullScreenTransition.h"
#include "platform/NotificationCenter.h"
#include "platform/WindowRegistry.h"
#include "simulated/Journal.h"
#include "simulated/MainLoop.h"
#include "simulated/StubViewHost.h"
#include "view/ViewTree.h"

#include <functional>
#include <memory>
#include <string>

namespace orken::simulated {

/// What kind of desktop the client finds itself on.
struct DesktopOptions {
    /// Whether the hidden alert panel that closes the window list is there.
    bool permanentPanel = true;
};

class SimulatedWindow final : public Window, public std::enable_shared_from_this<SimulatedWindow> {
public:
    struct Surroundings {
        MainLoop& loop;
        NotificationCenter& notifications;
        Journal& journal;
        WindowRegistry& registry;
    };

    SimulatedWindow(const Surroundings& surroundings, WindowKind kind, WindowStyleMask styleMask)
        : surroundings_(surroundings), kind_(kind), styleMask_(styleMask)
    {
    }

    ~SimulatedWindow() override { dropContent(); }

    [[nodiscard]] bool isVisible() const override { return visible_; }

    [[nodiscard]] WindowStyleMask styleMask() const override
    {
        return styleMask_ | (fullScreen_.isFullScreen() ? windowStyle::kFullScreen : 0U);
    }

    void setTitle(const std::string& title) override
    {
        title_ = title;
        surroundings_.journal.add("title " + title);
    }

    void center() override { surroundings_.journal.add("center"); }

    void makeKeyAndOrderFront() override
    {
        visible_ = true;
        surroundings_.registry.gotKeyboard(*this);
        surroundings_.journal.add("show " + title_);
    }

    void setContentView(std::unique_ptr<View> root) override
    {
        surroundings_.loop.requireMainThread();
        dropContent();
        surroundings_.journal.add("content " + title_);
        tree_ = ViewTree::make(*content_, std::move(root));
    }

    void toggleFullScreen() override
    {
        if (kind_ != WindowKind::application || !visible_) {
            return;
        }
        const auto change = fullScreen_.toggle();
        if (!change) {
            return;
        }
        const bool enters = change == FullScreenChange::willEnter;
        surroundings_.journal.add((enters ? "enter full screen " : "leave full screen ") + title_);
        post(*change);
        surroundings_.loop.later(kTransitionTime, [self = shared_from_this(), enters] { self->endTransition(enters); });
    }

    void close() override
    {
        surroundings_.loop.requireMainThread();
        const auto keep = shared_from_this();
        surroundings_.journal.add("close " + title_);
        visible_ = false;
        onClose();
    }

    // The desktop's side.
    [[nodiscard]] const std::string& title() const { return title_; }

    [[nodiscard]] StubViewHost& content() { return *content_; }

    void setVisible(bool visible) { visible_ = visible; }

    void dropContent()
    {
        if (tree_) {
            tree_->detach();
            content_ = std::make_unique<StubViewHost>();
            tree_ = nullptr;
        }
    }

    /// What a close by the program brings beyond the window's going off the screen.
    std::function<void()> onClose = [] {};

private:
    static constexpr Seconds kTransitionTime{0.05};

    void post(FullScreenChange change) { surroundings_.notifications.post(notificationName(change)); }

    void endTransition(bool fullScreen)
    {
        for (const FullScreenChange change : fullScreen_.reported(fullScreen)) {
            post(change);
        }
    }

    Surroundings surroundings_;
    WindowKind kind_;
    WindowStyleMask styleMask_;
    std::string title_;
    bool visible_ = false;
    FullScreenTransition fullScreen_;
    std::unique_ptr<StubViewHost> content_ = std::make_unique<StubViewHost>();
    std::shared_ptr<ViewTree> tree_;
};

} // namespace orken::simulated
