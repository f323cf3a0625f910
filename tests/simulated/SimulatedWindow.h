#pragma once

#include "platform/FullScreenTransition.h"
#include "platform/WindowRegistry.h"
#include "simulated/Part.h"
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

class SimulatedWindow final : public Window, Part, public std::enable_shared_from_this<SimulatedWindow> {
public:
    SimulatedWindow(Common& common, WindowRegistry& registry, WindowKind kind, WindowStyleMask styleMask)
        : Part(common), registry_(registry), kind_(kind), styleMask_(styleMask)
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
        journal_.add("title " + title);
    }

    void center() override { journal_.add("center"); }

    void makeKeyAndOrderFront() override
    {
        visible_ = true;
        registry_.gotKeyboard(*this);
        journal_.add("show " + title_);
    }

    void setContentView(std::unique_ptr<View> root) override
    {
        loop_.requireMainThread();
        dropContent();
        journal_.add("content " + title_);
        tree_ = ViewTree::make(*content_, std::move(root));
    }

    void toggleFullScreen() override
    {
        const bool canChange = kind_ == WindowKind::application && visible_;
        if (const auto change = canChange ? fullScreen_.toggle() : std::nullopt) {
            const bool enters = change == FullScreenChange::willEnter;
            journal_.add((enters ? "enter full screen " : "leave full screen ") + title_);
            post(*change);
            loop_.later(kTransitionTime, [self = shared_from_this(), enters] {
                for (const FullScreenChange end : self->fullScreen_.reported(enters)) {
                    self->post(end);
                }
            });
        }
    }

    void close() override
    {
        loop_.requireMainThread();
        const auto keep = shared_from_this();
        journal_.add("close " + title_);
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

    void post(FullScreenChange change) { common_.notifications.post(notificationName(change)); }

    WindowRegistry& registry_;
    WindowKind kind_;
    WindowStyleMask styleMask_;
    std::string title_;
    bool visible_ = false;
    FullScreenTransition fullScreen_;
    std::unique_ptr<StubViewHost> content_ = std::make_unique<StubViewHost>();
    std::shared_ptr<ViewTree> tree_;
};

} // namespace orken::simulated
